#pragma once

#include "TranscodeFailure.h"

#include <QHash>
#include <QStringList>

namespace kestrel {

/// Reads what ffmpeg says under `-loglevel repeat+level+verbose`, line by line: counts what it reports as errors, keeps
/// the first and the last of them, and knows how many packets it wrote. As much as it may say, only that is kept.
class ToolMessages {
public:
    static constexpr qsizetype keptAtEachEnd = 20;

    /// `paths` are taken out of messages: "Permission denied.mkv" is none.
    explicit ToolMessages(QStringList paths = {});

    void readLine(const QByteArray &line);

    /// Errors, and packets and pictures that it calls corrupt.
    int faults() const { return m_faults; }
    bool saysEmptyOutput() const { return m_saysEmptyOutput; }
    /// By the number of the stream in the output; empty where it was not told.
    const QHash<int, qint64> &packetsMuxed() const { return m_packetsMuxed; }
    /// The cause that is told most plainly.
    TranscodeFailure failure() const { return m_failure; }
    /// The first and the last faults, or the last lines where there are none.
    QString text() const;

private:
    void keepFault(const QString &line);

    QStringList m_paths;
    int m_faults = 0;
    bool m_saysEmptyOutput = false;
    QHash<int, qint64> m_packetsMuxed;
    TranscodeFailure m_failure;
    QStringList m_first;
    QStringList m_last;
    QStringList m_lastLines;
};

}  // namespace kestrel
