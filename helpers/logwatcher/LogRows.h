#pragma once

#include <QtGlobal>

#include <optional>

namespace kestrel {

class LogFile;

/// One row of the view, in bytes of the file. `end` leaves out the line break; `next` is where the next row begins.
struct LogRow {
    qint64 begin = 0;
    qint64 end = 0;
    qint64 next = 0;

    bool operator==(const LogRow &) const = default;
};

/// The rows that a view shows, told by their place in the file. They also have a position each, ascending from 0 and
/// below `extent()`, which need not count them: it is what a scroll bar shows.
class LogRows {
public:
    virtual ~LogRows() = default;

    /// The row with this byte, else the last one before it, else the first; none where there are no rows.
    virtual std::optional<LogRow> rowAt(qint64 offset) const = 0;
    virtual std::optional<LogRow> rowAfter(const LogRow &row) const = 0;
    virtual std::optional<LogRow> rowBefore(const LogRow &row) const = 0;
    virtual bool isShown(qint64 offset) const = 0;  ///< whether the byte is in one of the rows

    virtual qint64 extent() const = 0;
    virtual qint64 positionOf(const LogRow &row) const = 0;
    virtual std::optional<LogRow> rowAtPosition(qint64 position) const = 0;
};

/// All lines of a file, found by looking at the bytes around the place that is asked for: nothing is read ahead or
/// kept. A line of more than `blockLength` bytes goes on in further rows, at most twice as long each, so that no row
/// costs more than that however long its line.
class LogLines : public LogRows {
public:
    static constexpr qint64 blockLength = 4096;

    explicit LogLines(const LogFile &file) : m_file(file) {}

    std::optional<LogRow> rowAt(qint64 offset) const override;
    std::optional<LogRow> rowAfter(const LogRow &row) const override;
    std::optional<LogRow> rowBefore(const LogRow &row) const override;
    bool isShown(qint64) const override { return true; }

    /// Positions are bytes.
    qint64 extent() const override;
    qint64 positionOf(const LogRow &row) const override { return row.begin; }
    std::optional<LogRow> rowAtPosition(qint64 position) const override { return rowAt(position); }

private:
    std::optional<qint64> forcedBreak(qint64 block) const;
    qint64 rowBegin(qint64 offset) const;
    LogRow rowFrom(qint64 begin) const;

    const LogFile &m_file;
};

}  // namespace kestrel
