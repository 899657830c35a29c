#pragma once

#include "JobRecord.h"

#include <QHash>

namespace kestrel {

/// The order of one module's jobs: by row, and by a position that is stored, so that one job moves without the others
/// being written.
class JobOrder {
public:
    struct Range {
        int first = 0;
        int count = 0;
        bool operator==(const Range &) const = default;
    };

    const QList<JobId> &ids() const { return m_ids; }
    int rowOf(JobId id) const;  ///< -1 where there is none; quick
    double positionOf(JobId id) const { return m_places.value(id).position; }

    /// At the end, with a position that is not below the last.
    void append(JobId id, std::optional<double> position = {});
    /// What of the ids is here, as runs of rows that stand together, in their order.
    QList<Range> rangesOf(const QList<JobId> &ids) const;
    void remove(Range range);
    /// Moves the rows in front of row `to`, which is not within them; as in QAbstractItemModel::beginMoveRows.
    void move(Range range, int to);
    /// The same for all of them at once, which keep their order; `to` is within none of them.
    void gather(const QList<Range> &ranges, int to);
    /// Gives new positions to rows that were moved, and to as few others as that takes. Those that changed.
    QList<JobId> settlePositions(Range moved);

private:
    struct Place {
        int row = -1;
        double position = 0;
    };
    static constexpr double spacing = 1 << 20;

    double positionAt(int row) const { return m_places.value(m_ids.at(row)).position; }

    QList<JobId> m_ids;
    mutable QHash<JobId, Place> m_places;
    mutable int m_validRows = 0;  ///< from the start, of those in m_places
};

}  // namespace kestrel
