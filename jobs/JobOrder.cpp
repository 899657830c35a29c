#include "JobOrder.h"

#include <algorithm>

namespace kestrel {

int JobOrder::rowOf(JobId id) const
{
    const auto found = m_places.constFind(id);
    if (found == m_places.cend())
        return -1;
    if (found->row >= 0 && found->row < m_validRows && m_ids.at(found->row) == id)
        return found->row;
    for (; m_validRows < m_ids.size(); ++m_validRows)
        m_places[m_ids.at(m_validRows)].row = m_validRows;
    return m_places.value(id).row;
}

void JobOrder::append(JobId id, std::optional<double> position)
{
    const int row = int(m_ids.size());
    constexpr JobId lastInTurn = JobId(1) << 30;
    // Behind all that were ever added, also by who has not loaded the others: ids grow.
    const double ofId = id < lastInTurn ? double(id) * spacing : spacing;
    const double last = row > 0 ? positionAt(row - 1) : 0;
    const double next = row > 0 ? std::max(last + spacing, ofId) : ofId;
    m_places.insert(id, {row, row > 0 && position ? std::max(*position, last) : position.value_or(next)});
    m_ids.append(id);
    if (m_validRows == row)
        ++m_validRows;
}

QList<JobOrder::Range> JobOrder::rangesOf(const QList<JobId> &ids) const
{
    QList<int> rows;
    rows.reserve(ids.size());
    for (const JobId id : ids) {
        if (const int row = rowOf(id); row >= 0)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    QList<Range> ranges;
    for (const int row : std::as_const(rows)) {
        if (!ranges.isEmpty() && ranges.last().first + ranges.last().count == row)
            ++ranges.last().count;
        else
            ranges.append({row, 1});
    }
    return ranges;
}

void JobOrder::remove(Range range)
{
    for (int row = range.first; row < range.first + range.count; ++row)
        m_places.remove(m_ids.at(row));
    m_ids.remove(range.first, range.count);
    m_validRows = std::min(m_validRows, range.first);
}

void JobOrder::move(Range range, int to)
{
    const auto first = m_ids.begin() + range.first, last = first + range.count;
    if (to > range.first)
        std::rotate(first, last, m_ids.begin() + to);
    else
        std::rotate(m_ids.begin() + to, first, last);
    m_validRows = std::min({m_validRows, range.first, to});
}

void JobOrder::gather(const QList<Range> &ranges, int to)
{
    QList<JobId> gathered, before, behind;
    int row = 0;
    const auto passTo = [&](int end) {
        for (; row < end; ++row)
            (row < to ? before : behind).append(m_ids.at(row));
    };
    for (const Range &range : ranges) {
        passTo(range.first);
        gathered.append(m_ids.mid(range.first, range.count));
        row += range.count;
    }
    passTo(int(m_ids.size()));
    m_ids = before + gathered + behind;
    m_validRows = 0;
}

QList<JobId> JobOrder::settlePositions(Range moved)
{
    // Where the neighbours leave too little room, some of them are given new positions as well.
    constexpr double smallestStep = 1;
    const int size = int(m_ids.size());
    int first = moved.first, end = moved.first + moved.count;
    double before = 0, step = spacing;
    for (int reach = 1;; reach *= 2) {
        before = first > 0 ? positionAt(first - 1) : (end < size ? positionAt(end) - spacing * (end - first + 1) : 0);
        step = end < size ? (positionAt(end) - before) / (end - first + 1) : spacing;
        if (step >= smallestStep || (first == 0 && end == size))
            break;
        first = std::max(0, first - reach);
        end = std::min(size, end + reach);
    }
    QList<JobId> changed;
    for (int row = first; row < end; ++row) {
        m_places[m_ids.at(row)].position = before + step * (row - first + 1);
        changed.append(m_ids.at(row));
    }
    return changed;
}

}  // namespace kestrel
