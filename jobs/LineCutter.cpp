#include "LineCutter.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kestrel {

namespace {

/// `end` where there is none. A tool may write a gigabyte: byte by byte takes ten times as long.
const char *find(const char *start, const char *end, char byte)
{
    const void *found = std::memchr(start, byte, size_t(end - start));
    return found ? static_cast<const char *>(found) : end;
}

}  // namespace

bool LineCutter::read(const QByteArray &piece, const Taker &take)
{
    const char *position = piece.constBegin();
    const char *const end = piece.constEnd();
    const char *newline = find(position, end, '\n');
    while (position != end) {
        if (std::exchange(m_endsWithReturn, false) && *position == '\n') {
            ++position;
            continue;
        }
        if (newline < position)
            newline = find(position, end, '\n');
        const char *lineEnd = find(position, newline, '\r');
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
