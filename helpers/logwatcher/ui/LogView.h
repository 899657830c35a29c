#pragma once

#include "LogPage.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>

namespace kestrel {

/// Shows rows of a log and scrolls through them, however many there are: it reads what is on screen and nothing else.
/// While it follows, it stays at the end; scrolling up stops that, and coming back to the end begins it again. Text is
/// selected with the mouse and with Shift and the arrow keys; places are bytes of the file.
class LogView : public QAbstractScrollArea {
    Q_OBJECT
public:
    static constexpr qint64 maximumCopyLength = 8 * 1024 * 1024;

    explicit LogView(const LogFile &file, const LogRows &rows, QWidget *parent = nullptr);

    void setRows(const LogRows &rows);  ///< the first row on screen stays there as far as it can
    void refresh();                     ///< the file, which may be another, or the rows have changed
    void setMarkedText(const QString &text);

    bool isFollowing() const { return m_isFollowing; }
    void setFollowing(bool isFollowing);

    bool hasSelection() const { return m_anchor != m_cursor; }
    qint64 selectionBegin() const { return std::min(m_anchor, m_cursor); }
    qint64 selectionEnd() const { return std::max(m_anchor, m_cursor); }
    qint64 cursor() const { return m_cursor; }
    void select(qint64 anchor, qint64 cursor);
    void clearSelection() { select(m_cursor, m_cursor); }
    enum class Reveal { WithContext, Barely };
    void reveal(qint64 offset, Reveal how = Reveal::WithContext);  ///< scrolls there, if it is not on screen
    void copy();  ///< at most `maximumCopyLength` bytes of the selection
    void selectAll();

    qint64 pageBegin() const;  ///< bytes on screen
    qint64 pageEnd() const;
    const LogPage &page() const { return m_page; }
    QRect caretRect(qint64 offset) const;  ///< in the viewport; null where it is not on screen
    qint64 offsetAt(QPoint point) const;   ///< of a point of the viewport

signals:
    void followingChanged(bool isFollowing);
    void selectionChanged();
    void copied(bool isCut);  ///< whether the selection was longer than what is copied

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void forget();
    int pageRows() const;  ///< that are wholly on screen
    std::optional<LogRow> lastTop() const;
    std::optional<LogRow> movedBy(std::optional<LogRow> row, int rows) const;
    void scrollTo(const std::optional<LogRow> &top);
    void scrollBy(int rows);
    void updateScrollBars(const std::optional<LogRow> &top, const std::optional<LogRow> &last);
    QPoint origin() const;

    bool scrollWithKey(const QKeyEvent &event);
    bool selectWithKey(const QKeyEvent &event);
    qint64 movedCursor(const QKeyEvent &event) const;
    qint64 neighbour(qint64 offset, int direction) const;
    qint64 offsetInRow(const std::optional<LogRow> &row, double x) const;
    void selectWord(qint64 offset);
    QString selectedText(bool &isCut) const;

    const LogFile &m_file;
    const LogRows *m_rows;
    LogPage m_page;
    qint64 m_top = 0;
    int m_barShift = 0;  ///< positions a step of the scroll bar, as a power of two
    bool m_isFollowing = true;
    bool m_isUpdatingBars = false;
    bool m_isSelecting = false;
    qint64 m_anchor = 0, m_cursor = 0;
    QString m_markedText;
    double m_widest = 0;  ///< of the rows seen: what comes and goes must not move the text aside
    double m_wheelRest = 0;
    QBasicTimer m_dragTimer;
};

}  // namespace kestrel
