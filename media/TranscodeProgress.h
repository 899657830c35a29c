#pragma once

#include <QByteArray>

#include <optional>

namespace kestrel {

/// Follows ffmpeg's progress report, which comes as lines of "key=value".
class TranscodeProgress {
public:
    void readLine(const QByteArray &line);

    /// Seconds of the output that are written; never less than before.
    double seconds() const { return m_seconds; }
    qint64 frames() const { return m_frames; }
    qint64 bytes() const { return m_bytes; }
    /// The size of the whole output, once the tool has written it all.
    std::optional<qint64> finalBytes() const { return m_hasEnded ? std::optional(m_bytes) : std::nullopt; }
    /// Whether something of it has grown since this was asked last.
    bool hasMoved();
    /// Whether the report of the moment is complete.
    bool isAtReportEnd() const { return m_isAtReportEnd; }

private:
    double m_seconds = 0;
    qint64 m_frames = 0;
    qint64 m_bytes = 0;
    qint64 m_bytesBefore = 0, m_framesBefore = 0;
    double m_secondsBefore = 0;
    bool m_isAtReportEnd = false;
    bool m_hasEnded = false;
};

}  // namespace kestrel
