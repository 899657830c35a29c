#include "TranscodeProgress.h"

#include <algorithm>

namespace kestrel {

void TranscodeProgress::read(const QByteArray &piece)
{
    constexpr qsizetype maximumLineLength = 4096;
    m_pending += piece;
    qsizetype start = 0;
    for (qsizetype end = 0; (end = m_pending.indexOf('\n', start)) >= 0; start = end + 1)
        readLine(m_pending.mid(start, end - start).trimmed());
    m_pending.remove(0, start);
    if (m_pending.size() > maximumLineLength)
        m_pending.clear();
}

void TranscodeProgress::readLine(const QByteArray &line)
{
    const qsizetype equals = line.indexOf('=');
    const QByteArray key = line.left(std::max<qsizetype>(equals, 0));
    const QByteArray value = line.mid(equals + 1);
    if (key == "out_time_us")  // "N/A" and negative before the first picture
        m_processed = std::max(m_processed, double(value.toLongLong()) / 1e6);
}

}  // namespace kestrel
