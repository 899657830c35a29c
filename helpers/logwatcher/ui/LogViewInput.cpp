#include "LogView.h"
#include "helpers/logwatcher/LogFile.h"
#include "tarnwell/Localization.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

constexpr int dragIntervalMs = 40;
constexpr qint64 maximumSelectionClipboardLength = 256 * 1024;

bool isOfWord(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character.isSurrogate() || character.isMark();
}

}  // namespace

void LogView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else if (!(event->modifiers().testFlag(Qt::ShiftModifier) ? selectWithKey(*event) : scrollWithKey(*event)))
        QAbstractScrollArea::keyPressEvent(event);
}

bool LogView::scrollWithKey(const QKeyEvent &event)
{
    QScrollBar *horizontal = horizontalScrollBar();
    switch (event.key()) {
        case Qt::Key_Up:
            scrollBy(-1);
            return true;
        case Qt::Key_Down:
            scrollBy(1);
            return true;
        case Qt::Key_PageUp:
            scrollBy(1 - pageRows());
            return true;
        case Qt::Key_PageDown:
        case Qt::Key_Space:
            scrollBy(std::max(pageRows() - 1, 1));
            return true;
        case Qt::Key_Home:
            scrollTo(m_rows->rowAt(0));
            return true;
        case Qt::Key_End:
            scrollTo(lastTop());
            return true;
        case Qt::Key_Left:
            horizontal->triggerAction(QScrollBar::SliderSingleStepSub);
            return true;
        case Qt::Key_Right:
            horizontal->triggerAction(QScrollBar::SliderSingleStepAdd);
            return true;
        default:
            return false;
    }
}

bool LogView::selectWithKey(const QKeyEvent &event)
{
    const bool isOnPage = m_page.caretAt(m_cursor).has_value();
    if (!isOnPage && !hasSelection())
        select(pageBegin(), pageBegin());
    const qint64 cursor = movedCursor(event);
    if (cursor < 0)
        return false;
    // In this order: what is told to assistive programs is a place on screen.
    reveal(cursor, Reveal::Barely);
    select(m_anchor, cursor);
    return true;
}

/// Where Shift and this key take the end of the selection; negative for other keys.
qint64 LogView::movedCursor(const QKeyEvent &event) const
{
    const auto row = m_rows->rowAt(m_cursor);
    if (!row)
        return -1;
    const auto caret = m_page.caretAt(m_cursor);
    const double x = caret ? caret->x() : 0;
    const bool isWhole = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
        case Qt::Key_Up:
            return offsetInRow(movedBy(row, -1), x);
        case Qt::Key_Down:
            return offsetInRow(movedBy(row, 1), x);
        case Qt::Key_PageUp:
            return offsetInRow(movedBy(row, 1 - pageRows()), x);
        case Qt::Key_PageDown:
            return offsetInRow(movedBy(row, pageRows() - 1), x);
        case Qt::Key_Left:
            return neighbour(m_cursor, -1);
        case Qt::Key_Right:
            return neighbour(m_cursor, 1);
        case Qt::Key_Home:
            return isWhole ? 0 : row->begin;
        case Qt::Key_End:
            return isWhole ? m_file.size() : row->end;
        default:
            return -1;
    }
}

/// The place in another row that is nearest to a horizontal one.
qint64 LogView::offsetInRow(const std::optional<LogRow> &row, double x) const
{
    LogPage page;
    page.setFont(font());
    page.fill(m_file, *m_rows, row, 1);
    return page.offsetAt({x, 0});
}

/// The place one character on or back, over the ends of rows.
qint64 LogView::neighbour(qint64 offset, int direction) const
{
    auto row = m_rows->rowAt(offset);
    if (row && direction > 0 && offset >= row->end) {
        const auto after = m_rows->rowAfter(*row);
        return after ? after->begin : row->end;
    }
    if (row && direction < 0 && offset <= row->begin) {
        row = m_rows->rowBefore(*row);
        if (row && row->end < row->next)
            return row->end;
    }
    if (!row)
        return offset;
    const LogText text = LogText::of(m_file.read(row->begin, row->end - row->begin));
    const QTextLayout layout(text.text);
    const int index = text.indexOf(offset - row->begin);
    const int moved = direction > 0 ? layout.nextCursorPosition(index) : layout.previousCursorPosition(index);
    return row->begin + text.offsets[size_t(moved)];
}

void LogView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const qint64 offset = offsetAt(event->position().toPoint());
    select(event->modifiers().testFlag(Qt::ShiftModifier) ? m_anchor : offset, offset);
    m_isSelecting = true;
}

void LogView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isSelecting)
        return;
    select(m_anchor, offsetAt(event->position().toPoint()));
    if (viewport()->rect().contains(event->position().toPoint()))
        m_dragTimer.stop();
    else if (!m_dragTimer.isActive())
        m_dragTimer.start(dragIntervalMs, this);
}

/// The pointer is held outside, above or below: the text comes to it, the faster the farther away it is.
void LogView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_dragTimer.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    const QPoint pointer = viewport()->mapFromGlobal(QCursor::pos());
    const int beyond = pointer.y() - std::clamp(pointer.y(), 0, viewport()->height());
    if (beyond != 0)
        scrollBy(beyond / m_page.rowHeight() + (beyond > 0 ? 1 : -1));
    const int aside = pointer.x() - std::clamp(pointer.x(), 0, viewport()->width());
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + aside);
    select(m_anchor, offsetAt(pointer));
}

void LogView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_isSelecting = false;
    m_dragTimer.stop();
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (bool isCut = false; hasSelection() && clipboard->supportsSelection() &&
                            selectionEnd() - selectionBegin() <= maximumSelectionClipboardLength)
        clipboard->setText(selectedText(isCut), QClipboard::Selection);
}

void LogView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        selectWord(offsetAt(event->position().toPoint()));
}

void LogView::selectWord(qint64 offset)
{
    const LogPage::Line *line = m_page.lineWith(offset);
    if (!line)
        return;
    const QString &text = line->text.text;
    qsizetype begin = line->text.indexOf(offset - line->row.begin);
    qsizetype end = begin;
    while (begin > 0 && isOfWord(text[begin - 1]))
        --begin;
    while (end < text.size() && isOfWord(text[end]))
        ++end;
    select(line->row.begin + line->text.offsets[size_t(begin)], line->row.begin + line->text.offsets[size_t(end)]);
}

void LogView::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(AppLocalizedString(u"Copy"_s), QKeySequence::Copy, this, &LogView::copy)
        ->setEnabled(hasSelection());
    menu->addAction(AppLocalizedString(u"Select All"_s), QKeySequence::SelectAll, this, &LogView::selectAll);
    menu->popup(event->globalPos());
}

void LogView::selectAll()
{
    select(0, m_file.size());
}

void LogView::copy()
{
    if (!hasSelection())
        return;
    bool isCut = false;
    QGuiApplication::clipboard()->setText(selectedText(isCut));
    emit copied(isCut);
}

QString LogView::selectedText(bool &isCut) const
{
    QByteArray bytes;
    auto row = m_rows->rowAt(selectionBegin());
    for (; row && row->begin < selectionEnd() && bytes.size() < maximumCopyLength; row = m_rows->rowAfter(*row)) {
        if (row->next <= selectionBegin())
            continue;
        const qint64 begin = std::max(row->begin, selectionBegin());
        bytes += m_file.read(begin, std::min(row->end, selectionEnd()) - begin);
        if (row->next > row->end && selectionEnd() > row->end)
            bytes += '\n';
    }
    isCut = row && row->begin < selectionEnd();
    // Many programs take it for the end of the text.
    bytes.replace('\0', "\xEF\xBF\xBD");
    return QString::fromUtf8(bytes);
}

void LogView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void LogView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

}  // namespace kestrel
