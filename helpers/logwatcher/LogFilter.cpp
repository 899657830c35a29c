#include "LogFilter.h"

#include "LogFile.h"

#include <algorithm>

namespace kestrel {

namespace {

constexpr qint64 filterBlockLength = 256 * 1024;

}  // namespace

LogFilter::LogFilter(const LogFile &file, size_t maximumRows, QObject *parent)
    : QObject(parent),
      m_file(file),
      m_lines(file),
      m_maximumRows(maximumRows),
      m_slices([this] { return step(); })
{
}

void LogFilter::setText(const QString &text)
{
    m_pattern = TextPattern(text);
    m_found.clear();
    m_from = m_to = m_file.size();
    m_isCapped = false;
    m_shownPercent = 0;
    if (text.isEmpty() || m_from == 0)
        m_slices.stop();
    else
        m_slices.start();
    emit changed();
}

void LogFilter::fileGrown()
{
    if (m_pattern.isEmpty())
        return;
    // The last row may have been half a row.
    if (!m_found.empty())
        m_found.back() = m_lines.rowAt(m_found.back().begin).value_or(m_found.back());
    m_slices.start();
}

void LogFilter::stop()
{
    m_slices.stop();
    m_from = 0;
}

int LogFilter::percent() const
{
    return m_to > 0 ? int((m_to - m_from) * 100 / m_to) : 100;
}

/// New text first, then one block more towards the begin.
bool LogFilter::step()
{
    const bool hadLookedBack = hasLookedBack();
    bool isChanged = false;
    if (m_to < m_file.size()) {
        // The last text may have been half a match.
        const qint64 begin = std::max<qint64>(m_to - m_pattern.maximumLength(), 0);
        const qint64 end = std::min(m_to + filterBlockLength, m_file.size());
        for (const LogRow &row : rowsIn(begin, end)) {
            if (!m_found.empty() && row.begin <= m_found.back().begin)
                continue;
            m_found.push_back(row);
            isChanged = true;
        }
        m_to = end;
        for (; m_found.size() > m_maximumRows; m_isCapped = true)
            m_found.pop_front();
    } else if (!hadLookedBack) {
        const qint64 begin = std::max<qint64>(m_from - filterBlockLength, 0);
        std::deque<LogRow> rows = rowsIn(begin, m_from);
        if (!rows.empty() && !m_found.empty() && rows.back().begin >= m_found.front().begin)
            rows.pop_back();
        const size_t room = std::min(m_maximumRows - m_found.size(), rows.size());
        m_found.insert(m_found.begin(), rows.end() - qsizetype(room), rows.end());
        isChanged = room > 0;
        m_isCapped = room < rows.size();
        m_from = begin;
    }
    const bool isDone = m_to == m_file.size() && hasLookedBack();
    if (isDone)
        m_slices.stop();
    // New text without a match changes nothing.
    if (isChanged || (!hadLookedBack && (hasLookedBack() || percent() != m_shownPercent))) {
        m_shownPercent = percent();
        emit changed();
    }
    return !isDone;
}

/// The rows with matches that begin in this part of the file; the first of them may begin before it.
std::deque<LogRow> LogFilter::rowsIn(qint64 begin, qint64 end) const
{
    std::deque<LogRow> rows;
    m_pattern.forEachIn(m_file.read(begin, end - begin + m_pattern.maximumLength() - 1), [&](TextPattern::Match match) {
        match.begin += begin;
        if (match.begin >= end)
            return false;
        if (!rows.empty() && match.begin < rows.back().next)
            return true;
        if (const auto row = m_lines.rowAt(match.begin))
            rows.push_back(*row);
        return true;
    });
    return rows;
}

std::optional<LogRow> LogFilter::rowAtPosition(qint64 position) const
{
    if (m_found.empty())
        return std::nullopt;
    return m_found[size_t(std::clamp<qint64>(position, 0, extent() - 1))];
}

std::optional<LogRow> LogFilter::rowAt(qint64 offset) const
{
    return rowAtPosition(positionAfter(offset) - 1);
}

std::optional<LogRow> LogFilter::rowAfter(const LogRow &row) const
{
    const qint64 position = positionAfter(row.begin);
    return position < extent() ? rowAtPosition(position) : std::nullopt;
}

std::optional<LogRow> LogFilter::rowBefore(const LogRow &row) const
{
    const qint64 position = positionOf(row);
    return position > 0 ? rowAtPosition(position - 1) : std::nullopt;
}

bool LogFilter::isShown(qint64 offset) const
{
    const auto row = rowAt(offset);
    return row && row->begin <= offset && offset < row->next;
}

qint64 LogFilter::positionOf(const LogRow &row) const
{
    return std::ranges::lower_bound(m_found, row.begin, {}, &LogRow::begin) - m_found.cbegin();
}

/// Of the first row that begins beyond this byte.
qint64 LogFilter::positionAfter(qint64 offset) const
{
    return std::ranges::upper_bound(m_found, offset, {}, &LogRow::begin) - m_found.cbegin();
}

}  // namespace kestrel
