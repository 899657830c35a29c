#include "SuggestionList.h"

#include "Palette.h"
#include "tarnwell/Localization.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

constexpr int listEdge = 1;
constexpr int listGap = 4;  ///< to the field above and to the lower edge of the window
constexpr int minimumRowHeight = 24;

class AccessibleSuggestionRow : public QAccessibleWidget {
public:
    explicit AccessibleSuggestionRow(JSuggestionItemView *row) : QAccessibleWidget(row, QAccessible::ListItem) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = static_cast<const JSuggestionItemView *>(widget())->isHighlighted();
        return state;
    }

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString &name) override
    {
        auto *list = qobject_cast<SuggestionList *>(widget()->parentWidget());
        if (name == pressAction() && list)
            emit list->picked(list->findChildren<JSuggestionItemView *>(Qt::FindDirectChildrenOnly).indexOf(widget()));
    }
};

/// To assistive programs the keyboard is where its next key acts: in the highlighted row.
void announceFocus(QWidget *widget)
{
    QAccessibleEvent focus(widget, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

/// Tells assistive programs that it is a list with items; plain widgets are nothing to them.
QAccessibleInterface *suggestionInterface(const QString &className, QObject *object)
{
    if (className == "kestrel::tarnwell::SuggestionList"_L1)
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::List);
    if (className == "kestrel::tarnwell::JSuggestionItemView"_L1)
        return new AccessibleSuggestionRow(static_cast<JSuggestionItemView *>(object));
    return nullptr;
}

}  // namespace

SuggestionList::SuggestionList(QWidget *field, QWidget *window) : QWidget(window), m_scrollBar(new QScrollBar(this))
{
    QAccessible::installFactory(suggestionInterface);
    setObjectName(u"suggestionList"_s);
    setAccessibleName(AppLocalizedString(u"Suggestions"_s));
    setMouseTracking(true);
    // A click would otherwise give the keyboard to what lies below.
    setFocusProxy(field);
    m_scrollBar->setFocusPolicy(Qt::NoFocus);
    connect(m_scrollBar, &QScrollBar::valueChanged, this, &SuggestionList::layOut);
    hide();
}

SuggestionList::~SuggestionList()
{
    // A view that goes gives up the keyboard, and would do so in its proxy's name.
    setFocusProxy(nullptr);
}

void SuggestionList::setItems(const SuggestionItems &items, const RowFactory &makeRow)
{
    setHighlighted(none);
    m_items = items;
    m_rows.resize(std::min(m_rows.size(), size_t(items.size())));
    while (rowCount() < items.size()) {
        m_rows.emplace_back(makeRow(this));
        m_rows.back()->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    m_rowHeight = minimumRowHeight;
    for (int i = 0; i < rowCount(); ++i) {
        m_rows[i]->setItem(*items[i]);
        m_rows[i]->setAccessibleName(items[i]->contents());
        m_rows[i]->ensurePolished();
        m_rowHeight = std::max(m_rowHeight, m_rows[i]->sizeHint().height());
    }
    m_scrollBar->setValue(0);
    if (rowCount() == 1)
        setHighlighted(0);
}

void SuggestionList::setHighlighted(int index)
{
    if (index == m_highlighted)
        return;
    if (m_highlighted != none)
        m_rows[m_highlighted]->setHighlighted(false);
    m_highlighted = index;
    if (index != none) {
        JSuggestionItemView *row = m_rows[index].get();
        row->setHighlighted(true);
        m_scrollBar->setValue(std::clamp(m_scrollBar->value(), index + 1 - m_scrollBar->pageStep(), index));
        QAccessibleEvent selection(row, QAccessible::Selection);
        QAccessible::updateAccessibility(&selection);
        announceFocus(row);
    } else if (focusProxy()->hasFocus()) {
        announceFocus(focusProxy());
    }
    update();
}

void SuggestionList::moveHighlight(int step)
{
    if (m_highlighted == none)
        setHighlighted(step > 0 ? 0 : rowCount() - 1);
    else
        setHighlighted(std::clamp(m_highlighted + step, 0, rowCount() - 1));
}

void SuggestionList::placeBelow(const QWidget *field)
{
    const QWidget *window = parentWidget();
    const QPoint corner = field->mapTo(window, QPoint(0, field->height() + listGap));
    int width = field->width();
    for (const auto &row : m_rows)
        width = std::max(width, row->sizeHint().width() + 2 * listEdge);
    width = std::min(width, window->width() - 2 * listGap);
    const int left = std::clamp(corner.x(), listGap, std::max(listGap, window->width() - listGap - width));
    const int room = (window->height() - listGap - corner.y() - 2 * listEdge) / m_rowHeight;
    const int shown = std::clamp(room, 1, std::max(1, rowCount()));
    m_scrollBar->setPageStep(shown);
    m_scrollBar->setRange(0, rowCount() - shown);
    m_scrollBar->setVisible(shown < rowCount());
    setGeometry(left, corner.y(), width, shown * m_rowHeight + 2 * listEdge);
    layOut();
}

void SuggestionList::layOut()
{
    const QRect inner = rect().adjusted(listEdge, listEdge, -listEdge, -listEdge);
    const int barWidth = m_scrollBar->isHidden() ? 0 : m_scrollBar->sizeHint().width();
    m_scrollBar->setGeometry(inner.right() + 1 - barWidth, inner.top(), barWidth, inner.height());
    const int first = m_scrollBar->value();
    for (int i = 0; i < rowCount(); ++i) {
        m_rows[i]->setGeometry(inner.left(), inner.top() + (i - first) * m_rowHeight, inner.width() - barWidth,
                               m_rowHeight);
        m_rows[i]->setVisible(i >= first && i < first + m_scrollBar->pageStep());
    }
    update();
}

int SuggestionList::rowAt(const QPointF &position) const
{
    const auto isThere = [&position](const auto &row) {
        return row->isVisible() && row->geometry().contains(position.toPoint());
    };
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), isThere);
    return row == m_rows.end() ? none : int(row - m_rows.begin());
}

void SuggestionList::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(palette::strongLine));
    painter.fillRect(rect().adjusted(listEdge, listEdge, -listEdge, -listEdge), QColor(palette::surface));
    if (m_highlighted != none && m_rows[m_highlighted]->isVisible())
        painter.fillRect(m_rows[m_highlighted]->geometry(), QColor(palette::accent));
}

void SuggestionList::resizeEvent(QResizeEvent *)
{
    layOut();
}

void SuggestionList::mouseMoveEvent(QMouseEvent *event)
{
    if (const int index = rowAt(event->position()); index != none)
        setHighlighted(index);
}

void SuggestionList::mousePressEvent(QMouseEvent *event)
{
    mouseMoveEvent(event);
}

void SuggestionList::mouseReleaseEvent(QMouseEvent *event)
{
    if (const int index = rowAt(event->position()); index != none && event->button() == Qt::LeftButton)
        emit picked(index);
}

void SuggestionList::wheelEvent(QWheelEvent *event)
{
    m_scrollBar->event(event);
    event->accept();  // at its ends the page behind it stays where it is as well
}

}  // namespace kestrel::tarnwell
