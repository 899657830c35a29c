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
    m_begins.clear();
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
    if (!m_pattern.isEmpty())
        m_slices.start();
}

int LogFilter::percent() const
{
    return m_to > 0 ? int((m_to - m_from) * 100 / m_to) : 100;
}

/// New text first, then one block more towards the begin.
bool LogFilter::step()
{
    bool isChanged = false;
    if (m_to < m_file.size()) {
        // The last row may have been half a row, and half a match.
        const qint64 begin = std::max<qint64>(m_to - m_pattern.maximumLength(), 0);
        const qint64 end = std::min(m_to + filterBlockLength, m_file.size());
        for (const qint64 row : rowsIn(begin, end)) {
            if (!m_begins.empty() && row <= m_begins.back())
                continue;
            m_begins.push_back(row);
            isChanged = true;
        }
        m_to = end;
        for (; m_begins.size() > m_maximumRows; m_isCapped = true)
            m_begins.pop_front();
    } else if (m_from > 0 && !m_isCapped) {
        const qint64 begin = std::max<qint64>(m_from - filterBlockLength, 0);
        std::deque<qint64> rows = rowsIn(begin, m_from);
        if (!rows.empty() && !m_begins.empty() && rows.back() >= m_begins.front())
            rows.pop_back();
        const size_t room = std::min(m_maximumRows - m_begins.size(), rows.size());
        m_begins.insert(m_begins.begin(), rows.end() - qsizetype(room), rows.end());
        isChanged = room > 0;
        m_isCapped = room < rows.size();
        m_from = begin;
    }
    const bool isDone = m_to == m_file.size() && (m_from == 0 || m_isCapped);
    if (isDone)
        m_slices.stop();
    if (isChanged || isDone || percent() != m_shownPercent) {
        m_shownPercent = percent();
        emit changed();
    }
    return !isDone;
}

/// The rows with matches that begin in this part of the file; the first of them may begin before it.
std::deque<qint64> LogFilter::rowsIn(qint64 begin, qint64 end) const
{
    std::deque<qint64> rows;
    qint64 next = 0;
    m_pattern.forEachIn(m_file.read(begin, end - begin + m_pattern.maximumLength() - 1), [&](TextPattern::Match match) {
        match.begin += begin;
        if (match.begin >= end)
            return false;
        if (match.begin < next)
            return true;
        const auto row = m_lines.rowAt(match.begin);
        rows.push_back(row->begin);
        next = row->next;
        return true;
    });
    return rows;
}

std::optional<LogRow> LogFilter::rowAtPosition(qint64 position) const
{
    if (m_begins.empty())
        return std::nullopt;
    return m_lines.rowAt(m_begins[size_t(std::clamp<qint64>(position, 0, extent() - 1))]);
}

std::optional<LogRow> LogFilter::rowAt(qint64 offset) const
{
    const auto after = std::upper_bound(m_begins.cbegin(), m_begins.cend(), offset);
    return rowAtPosition(after - m_begins.cbegin() - 1);
}

std::optional<LogRow> LogFilter::rowAfter(const LogRow &row) const
{
    const qint64 position = std::upper_bound(m_begins.cbegin(), m_begins.cend(), row.begin) - m_begins.cbegin();
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
    return std::lower_bound(m_begins.cbegin(), m_begins.cend(), row.begin) - m_begins.cbegin();
}

}  // namespace kestrel
