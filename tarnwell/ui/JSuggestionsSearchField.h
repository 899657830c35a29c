#pragma once

#include <QLineEdit>
#include <QPointer>

#include <functional>
#include <memory>

namespace kestrel::tarnwell {

/// Something that a suggestion list can offer.
class SuggestionItem {
public:
    virtual ~SuggestionItem() = default;
    virtual QString contents() const = 0;  ///< what the list shows and what typed words are looked for in
};
using SuggestionItems = QList<std::shared_ptr<const SuggestionItem>>;

/// The items whose contents hold every typed word, in any order and case, in the order of the list. Nothing typed
/// offers nothing.
SuggestionItems GeneralSuggestionFilterSimple(const SuggestionItems &items, const QString &text);

/// One row of a suggestion list.
class JSuggestionItemView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    virtual void setItem(const SuggestionItem &item) = 0;
    bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool isHighlighted);

protected:
    virtual void onHighlightChanged() = 0;

private:
    bool m_isHighlighted = false;
};

class SuggestionsSearchDelegate {
public:
    virtual ~SuggestionsSearchDelegate() = default;
    virtual SuggestionItems onFilterSuggestionsWithText(const QString &text) = 0;
    /// The user picked `item`; null where typed text was committed instead.
    virtual void onSearchFieldValueChanged(const SuggestionItem *item) = 0;
};

class SuggestionList;

/// A search field with a list of suggestions below it while something is typed. The field keeps the keyboard: arrow
/// keys move in the list, Enter picks, Escape closes the list (and only then what is behind it); the mouse picks as
/// well. A suggestion that is the only one is highlighted at once. What was picked stands in the field, selected.
class JSuggestionsSearchField : public QLineEdit {
    Q_OBJECT
public:
    explicit JSuggestionsSearchField(QWidget *parent = nullptr);
    ~JSuggestionsSearchField() override;

    /// The delegate stays with its owner, which takes it away before it goes.
    void setMyDelegate(SuggestionsSearchDelegate *delegate);
    /// Makes the rows of the list.
    void setSuggestionRowFactory(std::function<JSuggestionItemView *(QWidget *parent)> makeRow);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    /// Watches the whole application while the list is open.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void offerSuggestions();
    void openList(const SuggestionItems &items);
    void closeList();
    void commit();
    void pick(int index);

    SuggestionsSearchDelegate *m_delegate = nullptr;
    std::function<JSuggestionItemView *(QWidget *parent)> m_makeRow;
    QPointer<SuggestionList> m_list;  ///< a child of the window, below the field; null or hidden while it is closed
};

}  // namespace kestrel::tarnwell
