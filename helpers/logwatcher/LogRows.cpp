#include "LogRows.h"

#include "LogFile.h"

#include <algorithm>

namespace kestrel {

namespace {

constexpr qint64 maximumContinuationBytes = 3;

bool isContinuationByte(char byte)
{
    return (uchar(byte) & 0xC0) == 0x80;
}

}  // namespace

/// Where the row before ends though no line does: at `block`, a multiple of the block length, if the block before it
/// holds no line break, or at the first character after that. A rule about places and not about distances from the
/// line's begin, which may be a gigabyte away.
std::optional<qint64> LogLines::forcedBreak(qint64 block) const
{
    if (block < blockLength || m_file.read(block - blockLength, blockLength).contains('\n'))
        return std::nullopt;
    const QByteArray after = m_file.read(block, maximumContinuationBytes + 2);
    const auto end = after.cbegin() + std::min<qsizetype>(after.size(), maximumContinuationBytes + 1);
    const qsizetype index = std::find_if_not(after.cbegin(), end, isContinuationByte) - after.cbegin();
    if (after.isEmpty() || after[index % after.size()] == '\n' || after.mid(index, 2) == "\r\n")
        return std::nullopt;
    return after.cbegin() + index == end ? block : block + index;
}

qint64 LogLines::rowBegin(qint64 offset) const
{
    qint64 block = offset / blockLength * blockLength;
    for (qint64 end = offset; block > 0; end = block, block -= blockLength) {
        const qint64 lineBreak = m_file.read(block, end - block).lastIndexOf('\n');
        if (lineBreak >= 0)
            return block + lineBreak + 1;
        if (const auto forced = forcedBreak(block); forced && *forced <= offset)
            return *forced;
    }
    return m_file.read(0, std::min(offset, blockLength)).lastIndexOf('\n') + 1;
}

LogRow LogLines::rowFrom(qint64 begin) const
{
    const QByteArray text = m_file.read(begin, 2 * blockLength + maximumContinuationBytes + 2);
    const qint64 lineBreak = text.indexOf('\n');
    LogRow row{begin, begin + text.size(), begin + text.size()};
    if (lineBreak >= 0)
        row = {begin, begin + lineBreak, begin + lineBreak + 1};
    for (qint64 block = (begin / blockLength + 1) * blockLength; block < row.end; block += blockLength) {
        if (const auto forced = forcedBreak(block); forced && *forced > begin)
            return {begin, *forced, *forced};
    }
    if (lineBreak > 0 && text[lineBreak - 1] == '\r')
        --row.end;
    return row;
}

std::optional<LogRow> LogLines::rowAt(qint64 offset) const
{
    if (m_file.size() == 0)
        return std::nullopt;
    return rowFrom(rowBegin(std::clamp<qint64>(offset, 0, m_file.size() - 1)));
}

std::optional<LogRow> LogLines::rowAfter(const LogRow &row) const
{
    if (row.next >= m_file.size())
        return std::nullopt;
    // A file that was cut short a moment ago, or a failing disk, gives nothing: that row would follow itself.
    const LogRow after = rowFrom(row.next);
    return after.next > after.begin ? std::optional(after) : std::nullopt;
}

std::optional<LogRow> LogLines::rowBefore(const LogRow &row) const
{
    return row.begin > 0 ? rowAt(row.begin - 1) : std::nullopt;
}

qint64 LogLines::extent() const
{
    return m_file.size();
}

}  // namespace kestrel
