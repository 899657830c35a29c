#include "LineCutter.h"

#include <algorithm>
#include <utility>

namespace kestrel {

bool LineCutter::read(const QByteArray &piece, const Taker &take)
{
    const char *position = piece.constBegin();
    const char *const end = piece.constEnd();
    while (position != end) {
        if (std::exchange(m_endsWithReturn, false) && *position == '\n') {
            ++position;
            continue;
        }
        const char *lineEnd = std::find_if(position, end, [](char byte) { return byte == '\n' || byte == '\r'; });
        m_line.append(position, std::min<qsizetype>(lineEnd - position, maximumLength - m_line.size()));
        if (lineEnd == end)
            break;
        m_endsWithReturn = *lineEnd == '\r';
        position = lineEnd + 1;
        if (!take(std::exchange(m_line, {})))
            return false;
    }
    return true;
}

bool LineCutter::finish(const Taker &take)
{
    return m_line.isEmpty() || take(std::exchange(m_line, {}));
}

}  // namespace kestrel
