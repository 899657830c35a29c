#include "TranscodeProgress.h"

#include <algorithm>

namespace kestrel {

void TranscodeProgress::readLine(const QByteArray &line)
{
    const qsizetype equals = line.indexOf('=');
    const QByteArray key = line.left(std::max<qsizetype>(equals, 0)).trimmed();
    const QByteArray value = line.mid(equals + 1).trimmed();
    m_isAtReportEnd = key == "progress";
    // "N/A" and negative numbers before the first picture read as nothing.
    if (key == "out_time_us")
        m_seconds = std::max(m_seconds, double(value.toLongLong()) / 1e6);
    else if (key == "frame")
        m_frames = std::max(m_frames, value.toLongLong());
    else if (key == "total_size")
        m_bytes = std::max<qint64>(0, value.toLongLong());
    else if (key == "progress")
        m_hasEnded = value == "end";
}

bool TranscodeProgress::hasMoved()
{
    const bool hasMoved = m_bytes != m_bytesBefore || m_frames != m_framesBefore || m_seconds != m_secondsBefore;
    m_bytesBefore = m_bytes;
    m_framesBefore = m_frames;
    m_secondsBefore = m_seconds;
    return hasMoved;
}

}  // namespace kestrel
