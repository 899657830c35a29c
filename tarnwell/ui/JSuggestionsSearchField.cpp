#include "JSuggestionsSearchField.h"

#include "SuggestionList.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace kestrel::tarnwell {

SuggestionItems GeneralSuggestionFilterSimple(const SuggestionItems &items, const QString &text)
{
    const QStringList words = text.simplified().split(u' ', Qt::SkipEmptyParts);
    SuggestionItems result;
    if (words.isEmpty())
        return result;
    const auto isOffered = [&words](const auto &item) {
        const QString contents = item->contents();
        return std::all_of(words.begin(), words.end(),
                           [&contents](const QString &word) { return contents.contains(word, Qt::CaseInsensitive); });
    };
    std::copy_if(items.begin(), items.end(), std::back_inserter(result), isOffered);
    return result;
}

void JSuggestionItemView::setHighlighted(bool isHighlighted)
{
    if (isHighlighted == m_isHighlighted)
        return;
    m_isHighlighted = isHighlighted;
    onHighlightChanged();
}

JSuggestionsSearchField::JSuggestionsSearchField(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &JSuggestionsSearchField::offerSuggestions);
}

JSuggestionsSearchField::~JSuggestionsSearchField()
{
    delete m_list.data();  // before the field that it sends the keyboard to
}

void JSuggestionsSearchField::setMyDelegate(SuggestionsSearchDelegate *delegate)
{
    closeList();
    m_delegate = delegate;
}

void JSuggestionsSearchField::setSuggestionRowFactory(std::function<JSuggestionItemView *(QWidget *parent)> makeRow)
{
    closeList();
    if (m_list)
        m_list->deleteLater();  // it has rows of another make
    m_list = nullptr;
    m_makeRow = std::move(makeRow);
}

void JSuggestionsSearchField::offerSuggestions()
{
    // A text that the program sets is no search.
    if (!m_delegate || !m_makeRow || !hasFocus())
        return;
    const SuggestionItems items = m_delegate->onFilterSuggestionsWithText(text());
    if (items.isEmpty())
        closeList();
    else
        openList(items);
}

void JSuggestionsSearchField::openList(const SuggestionItems &items)
{
    if (!m_list) {
        m_list = new SuggestionList(this, window());
        connect(m_list, &SuggestionList::picked, this, &JSuggestionsSearchField::pick);
    }
    if (m_list->parentWidget() != window())
        m_list->setParent(window());
    m_list->setItems(items, m_makeRow);
    m_list->placeBelow(this);
    if (!m_list->isHidden())
        return;
    m_list->raise();
    m_list->show();
    qApp->installEventFilter(this);
}

void JSuggestionsSearchField::closeList()
{
    if (!m_list || m_list->isHidden())
        return;
    qApp->removeEventFilter(this);
    m_list->setHighlighted(SuggestionList::none);
    m_list->hide();
}

void JSuggestionsSearchField::pick(int index)
{
    const auto item = m_list->item(index);
    {
        const QSignalBlocker blocker(this);
        setText(item->contents());
    }
    selectAll();
    closeList();
    if (m_delegate)
        m_delegate->onSearchFieldValueChanged(item.get());
}

void JSuggestionsSearchField::commit()
{
    const bool isOpen = m_list && !m_list->isHidden();
    if (isOpen && m_list->highlighted() != SuggestionList::none) {
        pick(m_list->highlighted());
        return;
    }
    closeList();
    if (m_delegate)
        m_delegate->onSearchFieldValueChanged(nullptr);
}

void JSuggestionsSearchField::keyPressEvent(QKeyEvent *event)
{
    const bool isOpen = m_list && !m_list->isHidden();
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // Left unused, it would press the window's default button.
            commit();
            return;
        case Qt::Key_Escape:
            if (!isOpen)
                break;
            closeList();
            return;
        case Qt::Key_Down:
            if (isOpen)
                m_list->moveHighlight(1);
            else
                offerSuggestions();
            return;
        case Qt::Key_Up:
            if (!isOpen)
                break;
            m_list->moveHighlight(-1);
            return;
        default:
            break;
    }
    QLineEdit::keyPressEvent(event);
}

void JSuggestionsSearchField::focusOutEvent(QFocusEvent *event)
{
    closeList();
    QLineEdit::focusOutEvent(event);
}

void JSuggestionsSearchField::hideEvent(QHideEvent *event)
{
    closeList();
    QLineEdit::hideEvent(event);
}

bool JSuggestionsSearchField::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    const bool isChange = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (!(isPress || isChange) || !watched->isWidgetType() || !m_list)
        return false;
    const auto *widget = static_cast<QWidget *>(watched);
    if (isPress && widget != this && widget != m_list && !m_list->isAncestorOf(widget))
        closeList();
    if (isChange && (widget == this || widget->isAncestorOf(this)))
        m_list->placeBelow(this);
    return false;
}

}  // namespace kestrel::tarnwell
