#pragma once

#include "LogRows.h"
#include "TextPattern.h"
#include "TimeSlices.h"

#include <QObject>

#include <deque>

namespace kestrel {

/// The rows of a file that contain a text: the newest `maximumRows` of them, looked for from the file's end, in slices
/// of the event loop. Rows that the file gains later join. Positions count rows.
class LogFilter : public QObject, public LogRows {
    Q_OBJECT
public:
    static constexpr size_t defaultMaximumRows = 100'000;

    explicit LogFilter(const LogFile &file, size_t maximumRows = defaultMaximumRows, QObject *parent = nullptr);

    /// Begins anew; an empty text ends it all.
    void setText(const QString &text);
    QString text() const { return m_pattern.text(); }

    void fileGrown();
    void fileReplaced() { setText(text()); }
    void stop();  ///< keeps what was found and looks at no older text

    bool isRunning() const { return m_slices.isRunning(); }
    bool isLookingBack() const { return isRunning() && !hasLookedBack(); }  ///< the first pass, through older text
    int percent() const;                                                    ///< of the file looked through
    bool isCapped() const { return m_isCapped; }                            ///< older rows were left out

    std::optional<LogRow> rowAt(qint64 offset) const override;
    std::optional<LogRow> rowAfter(const LogRow &row) const override;
    std::optional<LogRow> rowBefore(const LogRow &row) const override;
    bool isShown(qint64 offset) const override;
    qint64 extent() const override { return qint64(m_found.size()); }
    qint64 positionOf(const LogRow &row) const override;
    std::optional<LogRow> rowAtPosition(qint64 position) const override;

signals:
    void changed();  ///< rows or progress

private:
    bool step();
    bool hasLookedBack() const { return m_from == 0 || m_isCapped; }
    qint64 positionAfter(qint64 offset) const;
    std::deque<LogRow> rowsIn(qint64 begin, qint64 end) const;

    const LogFile &m_file;
    LogLines m_lines;
    TextPattern m_pattern;
    size_t m_maximumRows;
    std::deque<LogRow> m_found;   ///< ascending; kept whole, so that a search need not read them again
    qint64 m_from = 0, m_to = 0;  ///< what has been looked through
    bool m_isCapped = false;
    int m_shownPercent = 0;
    TimeSlices m_slices;
};

}  // namespace kestrel
