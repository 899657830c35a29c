#include "LogView.h"

#include "LogViewAccessible.h"
#include "helpers/logwatcher/LogFile.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/Palette.h"

#include <QAccessible>
#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int textMarginX = 12;
constexpr int textMarginY = 6;
constexpr int fontSize = 12;
constexpr qint64 maximumBarValue = 1 << 30;

QFont logFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setFamilies({u"Liberation Mono"_s, u"Menlo"_s, u"DejaVu Sans Mono"_s, font.family()});
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(fontSize);
    return font;
}

bool isBefore(const std::optional<LogRow> &row, const std::optional<LogRow> &other)
{
    return row && other && row->begin < other->begin;
}

}  // namespace

LogView::LogView(const LogFile &file, const LogRows &rows, QWidget *parent)
    : QAbstractScrollArea(parent),
      m_file(file),
      m_rows(&rows)
{
    installLogViewAccessibility();
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tarnwell::AppLocalizedString(u"Log text"_s));
    setFont(logFont());
    viewport()->setCursor(Qt::IBeamCursor);
    m_page.setFont(font());
    horizontalScrollBar()->setAccessibleName(tarnwell::AppLocalizedString(u"Scroll sideways"_s));
    verticalScrollBar()->setAccessibleName(tarnwell::AppLocalizedString(u"Scroll up and down"_s));
    setCornerWidget(new QWidget(this));
    connect(&m_file, &LogFile::replaced, this, &LogView::forget);
}

/// Rows of another file may stand at the very same places.
void LogView::forget()
{
    m_page.clear();
    m_widest = 0;
    select(0, 0);
}

void LogView::setRows(const LogRows &rows)
{
    m_rows = &rows;
    m_widest = 0;
    refresh();
}

void LogView::setMarkedText(const QString &text)
{
    m_markedText = text;
    viewport()->update();
}

void LogView::setFollowing(bool isFollowing)
{
    if (isFollowing == m_isFollowing)
        return;
    m_isFollowing = isFollowing;
    refresh();
    emit followingChanged(isFollowing);
}

int LogView::pageRows() const
{
    return std::max((viewport()->height() - 2 * textMarginY) / m_page.rowHeight(), 1);
}

std::optional<LogRow> LogView::movedBy(std::optional<LogRow> row, int rows) const
{
    for (; row && rows != 0; rows += rows > 0 ? -1 : 1) {
        const auto next = rows > 0 ? m_rows->rowAfter(*row) : m_rows->rowBefore(*row);
        if (!next)
            break;
        row = next;
    }
    return row;
}

/// The first row on screen where the last one stands at the bottom.
std::optional<LogRow> LogView::lastTop() const
{
    return movedBy(m_rows->rowAt(m_file.size()), 1 - pageRows());
}

void LogView::refresh()
{
    const qint64 end = m_file.size();
    if (selectionEnd() > end)
        select(std::min(m_anchor, end), std::min(m_cursor, end));
    const auto last = lastTop();
    auto top = m_rows->rowAt(m_top);
    if ((m_isFollowing && !m_isSelecting) || isBefore(last, top))
        top = last;
    m_top = top ? top->begin : 0;
    m_page.fill(m_file, *m_rows, top, pageRows() + 2);
    updateScrollBars(top, last);
    viewport()->update();
}

/// What the user does: it decides about following.
void LogView::scrollTo(const std::optional<LogRow> &top)
{
    const auto last = lastTop();
    m_top = top ? top->begin : 0;
    const bool isAtEnd = !isBefore(top, last);
    const bool isChange = isAtEnd != m_isFollowing;
    m_isFollowing = isAtEnd;
    refresh();
    if (isChange)
        emit followingChanged(isAtEnd);
}

void LogView::scrollBy(int rows)
{
    scrollTo(movedBy(m_rows->rowAt(m_top), rows));
}

void LogView::reveal(qint64 offset, Reveal how)
{
    const auto caret = m_page.caretAt(offset);
    const double bottom = double(pageRows()) * m_page.rowHeight();
    if (!caret || caret->bottom() > bottom) {
        const int rowsBelow = offset < pageBegin() ? 0 : pageRows() - 1;
        scrollTo(movedBy(m_rows->rowAt(offset), how == Reveal::Barely ? -rowsBelow : -pageRows() / 3));
    }
    if (const auto place = m_page.caretAt(offset)) {
        QScrollBar *bar = horizontalScrollBar();
        const int room = viewport()->width() - 2 * textMarginX;
        if (place->x() < bar->value() || place->x() > bar->value() + room)
            bar->setValue(int(place->x()) - room / 2);
    }
}

void LogView::updateScrollBars(const std::optional<LogRow> &top, const std::optional<LogRow> &last)
{
    m_isUpdatingBars = true;
    m_barShift = 0;
    while (m_rows->extent() >> m_barShift > maximumBarValue)
        ++m_barShift;
    const auto valueOf = [this](const std::optional<LogRow> &row) {
        return row ? int(m_rows->positionOf(*row) >> m_barShift) : 0;
    };
    QScrollBar *vertical = verticalScrollBar();
    vertical->setRange(0, valueOf(last));
    vertical->setPageStep(std::max(int(m_rows->extent() >> m_barShift) - valueOf(last), 1));
    vertical->setSingleStep(std::max(vertical->pageStep() / pageRows(), 1));
    vertical->setValue(valueOf(top));

    QScrollBar *horizontal = horizontalScrollBar();
    const int room = viewport()->width() - 2 * textMarginX;
    m_widest = std::max(m_widest, m_page.width());
    horizontal->setRange(0, std::max(int(std::ceil(m_widest)) - room, 0));
    horizontal->setPageStep(std::max(room, 1));
    horizontal->setSingleStep(m_page.rowHeight() * 2);
    m_isUpdatingBars = false;
}

void LogView::scrollContentsBy(int, int dy)
{
    const QScrollBar *bar = verticalScrollBar();
    if (m_isUpdatingBars)
        return;
    if (dy != 0)
        scrollTo(bar->value() == bar->maximum() ? lastTop()
                                                : m_rows->rowAtPosition(qint64(bar->value()) << m_barShift));
    else
        viewport()->update();
}

void LogView::wheelEvent(QWheelEvent *event)
{
    const QPoint pixels = event->pixelDelta();
    const QPoint angle = event->angleDelta();
    if (std::abs(angle.x()) > std::abs(angle.y()) || event->modifiers().testFlag(Qt::ShiftModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    constexpr double stepAngle = QWheelEvent::DefaultDeltasPerStep;
    m_wheelRest -= pixels.isNull() ? angle.y() / stepAngle * QApplication::wheelScrollLines()
                                   : double(pixels.y()) / m_page.rowHeight();
    const int rows = int(m_wheelRest);
    m_wheelRest -= rows;
    if (rows != 0)
        scrollBy(rows);
    event->accept();
}

QPoint LogView::origin() const
{
    return {textMarginX - horizontalScrollBar()->value(), textMarginY};
}

void LogView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), QColor(tarnwell::palette::surface));
    painter.setClipRect(event->rect());
    painter.translate(origin());
    m_page.paint(painter, {selectionBegin(), selectionEnd(), m_markedText});
    if (const auto caret = m_page.caretAt(m_cursor); caret && hasFocus())
        painter.fillRect(*caret, QColor(tarnwell::palette::accent));
}

void LogView::resizeEvent(QResizeEvent *)
{
    refresh();
}

void LogView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_page.setFont(font());
        refresh();
    }
}

void LogView::select(qint64 anchor, qint64 cursor)
{
    if (anchor == m_anchor && cursor == m_cursor)
        return;
    m_anchor = anchor;
    m_cursor = cursor;
    viewport()->update();
    emit selectionChanged();
    announceLogViewCursor(this);
}

qint64 LogView::pageBegin() const
{
    return m_page.lines().empty() ? 0 : m_page.lines().front().row.begin;
}

qint64 LogView::pageEnd() const
{
    return m_page.lines().empty() ? 0 : m_page.lines().back().row.next;
}

QRect LogView::caretRect(qint64 offset) const
{
    const auto caret = m_page.caretAt(offset);
    return caret ? caret->toRect().translated(origin()) : QRect();
}

qint64 LogView::offsetAt(QPoint point) const
{
    return m_page.offsetAt(point - origin());
}

}  // namespace kestrel
