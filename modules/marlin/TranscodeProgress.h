#pragma once

#include <QByteArray>

namespace kestrel {

/// Follows the transcoder's progress report, which comes as lines of "key=value" in pieces of any size.
class TranscodeProgress {
public:
    void read(const QByteArray &piece);

    /// Seconds of the output that are written; never less than before.
    double processed() const { return m_processed; }

private:
    void readLine(const QByteArray &line);

    QByteArray m_pending;
    double m_processed = 0;
};

}  // namespace kestrel
