#pragma once

#include "jobs/JobRecord.h"

#include <QByteArray>
#include <QHash>

namespace kestrel {

/// Reads what the engine says while it downloads. Picture and sound may come one after the other: the whole is one bar.
class EngineProgress {
public:
    /// `expectedBytes` of everything together, 0 where nothing is known.
    explicit EngineProgress(qint64 expectedBytes = 0, bool hasTwoFiles = false);

    /// False where the line is none of progress and tells no stage.
    bool readLine(const QByteArray &line);

    const JobProgress &progress() const { return m_progress; }
    /// Of the first report: what a run before this one has left.
    std::optional<qint64> resumedAt() const { return m_resumedAt; }
    qint64 bytes() const { return m_progress.bytes; }
    /// Of the last report: the file that grows, and words that tell what it is to become apart from others; null where
    /// that is not told.
    const QString &file() const { return m_file; }
    const QString &whole() const { return m_whole; }

private:
    struct File {
        qint64 done = 0;
        qint64 total = 0;
        double fraction = 0;
    };

    bool readReport(const QByteArray &json);
    void sumUp(double bytesPerSecond, bool hasFraction);

    qint64 m_expectedBytes;
    bool m_hasTwoFiles;
    QHash<QString, File> m_files;
    JobProgress m_progress;
    std::optional<qint64> m_resumedAt;
    QString m_file, m_whole;
};

}  // namespace kestrel
