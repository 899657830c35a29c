#include "LogViewAccessible.h"

#include "LogView.h"

#include <QAccessibleWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// The rows on screen as one text, of which offsets are UTF-16 units. A row's end and the line break after it count as
/// two places although a row that goes on in the next has none in the file.
class LogViewAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit LogViewAccessible(LogView *view) : QAccessibleWidget(view, QAccessible::EditableText), m_view(view) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    int selectionCount() const override { return begin() < end() ? 1 : 0; }

    void selection(int, int *startOffset, int *endOffset) const override
    {
        *startOffset = selectionCount() ? offsetOf(begin()) : 0;
        *endOffset = selectionCount() ? offsetOf(end()) : 0;
    }

    void addSelection(int startOffset, int endOffset) override { setSelection(0, startOffset, endOffset); }
    void removeSelection(int) override { m_view->clearSelection(); }

    void setSelection(int, int startOffset, int endOffset) override
    {
        m_view->select(placeOf(startOffset), placeOf(endOffset));
    }

    int cursorPosition() const override { return offsetOf(m_view->cursor()); }
    void setCursorPosition(int position) override { m_view->select(placeOf(position), placeOf(position)); }

    QString text(int startOffset, int endOffset) const override
    {
        return wholeText().mid(startOffset, endOffset - startOffset);
    }

    QString text(QAccessible::Text which) const override { return QAccessibleWidget::text(which); }

    int characterCount() const override { return int(wholeText().size()); }

    QRect characterRect(int offset) const override
    {
        const QRect begin = m_view->caretRect(placeOf(offset));
        const QRect end = m_view->caretRect(placeOf(offset + 1));
        const QRect place(begin.topLeft(), QSize(std::max(end.x() - begin.x(), 1), begin.height()));
        return place.translated(m_view->viewport()->mapToGlobal(QPoint()));
    }

    int offsetAtPoint(const QPoint &point) const override
    {
        return offsetOf(m_view->offsetAt(m_view->viewport()->mapFromGlobal(point)));
    }

    void scrollToSubstring(int startIndex, int) override { m_view->reveal(placeOf(startIndex)); }

    QString attributes(int, int *startOffset, int *endOffset) const override
    {
        *startOffset = 0;
        *endOffset = characterCount();
        return {};
    }

private:
    const std::vector<LogPage::Line> &lines() const { return m_view->page().lines(); }
    qint64 begin() const { return std::max(m_view->selectionBegin(), m_view->pageBegin()); }
    qint64 end() const { return std::min(m_view->selectionEnd(), m_view->pageEnd()); }

    QString wholeText() const
    {
        QString result;
        for (const LogPage::Line &line : lines())
            result += line.text.text + u'\n';
        return result.chopped(std::min<qsizetype>(result.size(), 1));
    }

    /// Of a byte of the file; the nearest end of the page for what is not on screen.
    int offsetOf(qint64 place) const
    {
        qsizetype result = 0;
        for (const LogPage::Line &line : lines()) {
            if (place < line.row.next)
                return int(result) + line.text.indexOf(std::max<qint64>(place - line.row.begin, 0));
            result += line.text.text.size() + 1;
        }
        return int(std::max<qsizetype>(result - 1, 0));
    }

    qint64 placeOf(int offset) const
    {
        qsizetype rest = std::max(offset, 0);
        for (const LogPage::Line &line : lines()) {
            if (rest <= line.text.text.size())
                return line.row.begin + line.text.offsets[size_t(rest)];
            rest -= line.text.text.size() + 1;
        }
        return m_view->pageEnd();
    }

    LogView *m_view;
};

QAccessibleInterface *makeLogViewAccessible(const QString &, QObject *object)
{
    LogView *view = qobject_cast<LogView *>(object);
    return view ? new LogViewAccessible(view) : nullptr;
}

}  // namespace

void installLogViewAccessibility()
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(makeLogViewAccessible);
        return true;
    }();
}

void announceLogViewCursor(LogView *view)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view);
    const QAccessibleTextInterface *text = accessible ? accessible->textInterface() : nullptr;
    if (!text)
        return;
    int begin = 0;
    int end = 0;
    text->selection(0, &begin, &end);
    QAccessibleTextSelectionEvent event(view, begin, end);
    event.setCursorPosition(text->cursorPosition());
    QAccessible::updateAccessibility(&event);
}

}  // namespace kestrel
