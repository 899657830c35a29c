#pragma once

#include "TranscodeFailure.h"

#include <QList>
#include <QStringList>

namespace kestrel {

/// What ffmpeg says that it wrote of one track.
struct MuxedTrack {
    QString kind;  ///< "video", "audio", "subtitle", "attachment", "data"
    qint64 packets = 0;
    bool operator==(const MuxedTrack &) const = default;
};

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
    /// In the order of the output; empty where it was not told.
    const QList<MuxedTrack> &muxedTracks() const { return m_muxedTracks; }
    /// The cause that is told most plainly.
    TranscodeFailure failure() const { return m_failure; }
    /// The first and the last faults, or the last lines where there are none.
    QString text() const;

private:
    void keepFault(const QString &line);

    QStringList m_paths;
    int m_faults = 0;
    bool m_saysEmptyOutput = false;
    QList<MuxedTrack> m_muxedTracks;
    TranscodeFailure m_failure;
    QStringList m_first;
    QStringList m_last;
    QStringList m_lastLines;
};

}  // namespace kestrel
