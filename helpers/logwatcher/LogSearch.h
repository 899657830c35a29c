#pragma once

#include "TextPattern.h"
#include "TimeSlices.h"

#include <QObject>

#include <optional>

namespace kestrel {

class LogFile;
class LogRows;

/// Looks for the next or the previous occurrence of a text in the rows that are shown, once around the file. One search
/// at a time; it goes on in slices of the event loop.
class LogSearch : public QObject {
    Q_OBJECT
public:
    enum class Direction { Forward, Backward };

    explicit LogSearch(const LogFile &file, QObject *parent = nullptr);

    /// Begins at a byte: forward finds what begins there or later, backward what begins before it. `rows` live at least
    /// until the search has ended.
    void start(const QString &text, qint64 from, Direction direction, const LogRows &rows);
    void stop() { m_slices.stop(); }
    bool isRunning() const { return m_slices.isRunning(); }

signals:
    void found(qint64 begin, qint64 length, bool hasWrapped);
    void notFound();
    void progressed(int percent);

private:
    bool step();
    std::optional<TextPattern::Match> matchIn(qint64 begin, qint64 end) const;

    const LogFile &m_file;
    const LogRows *m_rows = nullptr;
    TextPattern m_pattern;
    Direction m_direction = Direction::Forward;
    qint64 m_from = 0;
    qint64 m_covered = 0;  ///< bytes looked through, counted from `m_from` in the direction of the search
    qint64 m_total = 0;
    int m_percent = 0;
    TimeSlices m_slices;
};

}  // namespace kestrel
