#include "tarnwell/ui/JSuggestionsSearchField.h"

#include "tarnwell/ui/SuggestionList.h"
#include "tests/support/TestEnvironment.h"

#include <QAccessible>
#include <QDialog>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;
using namespace kestrel::tarnwell;

namespace {

struct Entry final : SuggestionItem {
    explicit Entry(const QString &text_) : text(text_) {}
    QString contents() const override { return text; }
    QString text;
};

/// Rows of 24 pixels without any look.
struct Row : JSuggestionItemView {
    explicit Row(QWidget *parent) : JSuggestionItemView(parent) { setFixedHeight(24); }
    void setItem(const SuggestionItem &) override {}
    void onHighlightChanged() override {}
};

class SuggestionsSearch : public testing::Test, public SuggestionsSearchDelegate {
protected:
    SuggestionsSearch()
    {
        setItems({u"a one"_s, u"a two"_s, u"a three"_s, u"b only"_s});
        m_window.resize(400, 500);
        m_field.setGeometry(100, 20, 200, 28);
        QObject::connect(&m_button, &QPushButton::clicked, &m_button, [this] { m_events += u"button "_s; });
        m_field.setMyDelegate(this);
        m_field.setSuggestionRowFactory([](QWidget *parent) { return new Row(parent); });
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field.setFocus();
    }
    ~SuggestionsSearch() override { m_field.setMyDelegate(nullptr); }

    SuggestionItems onFilterSuggestionsWithText(const QString &text) override
    {
        return GeneralSuggestionFilterSimple(m_items, text);
    }
    void onSearchFieldValueChanged(const SuggestionItem *item) override
    {
        m_events += item ? u"<%1> "_s.arg(item->contents()) : u"text "_s;
    }

    void setItems(const QStringList &texts)
    {
        m_items.clear();
        for (const QString &text : texts)
            m_items.append(std::make_shared<Entry>(text));
    }
    SuggestionList *list() { return m_window.findChild<SuggestionList *>(); }
    bool isOpen() { return list() && list()->isVisible(); }
    QList<JSuggestionItemView *> rows() { return list()->findChildren<JSuggestionItemView *>(); }
    void type(const QString &text, const std::vector<Qt::Key> &keys = {})
    {
        m_field.clear();
        QTest::keyClicks(&m_field, text);
        for (const Qt::Key key : keys)
            QTest::keyClick(&m_field, key);
    }
    /// What happened since it was last asked, and whether the list is open.
    QString events() { return std::exchange(m_events, {}) + (isOpen() ? u"open"_s : u"closed"_s); }

    SuggestionItems m_items;
    QDialog m_window;
    JSuggestionsSearchField m_field{&m_window};
    QPushButton m_button{&m_window};  // pressed by an Enter that the field leaves unused
    QString m_events;
};

TEST_F(SuggestionsSearch, EveryWordInAnyOrderAndCase)
{
    setItems({u"video folder"_s, u"video music folder"_s, u"notify"_s, u"Straße"_s});
    const struct {
        QString typed;
        SuggestionItems offered;
    } rows[] = {
        {u" \t "_s, {}}, {u"fold"_s, m_items.first(2)}, {u"FOLDER  mus "_s, {m_items[1]}}, {u"video notify"_s, {}},
        {u".*"_s, {}},   {u"STRAß"_s, {m_items[3]}}};
    for (const auto &[typed, offered] : rows)
        EXPECT_EQ(GeneralSuggestionFilterSimple(m_items, typed), offered) << typed.toStdString();
}

TEST_F(SuggestionsSearch, Keys)
{
    using enum Qt::Key;
    const struct {
        QString typed;
        std::vector<Qt::Key> keys;
        QString events;
    } rows[] = {
        {u"a"_s, {Key_Down}, u"open"_s},
        {u"a"_s, {Key_Return}, u"text closed"_s},
        {u"b"_s, {Key_Return}, u"<b only> closed"_s},
        {u"a"_s, {Key_Up, Key_Down, Key_Up, Key_Return}, u"<a two> closed"_s},  // the ends hold
        {u"a"_s, {Key_Down, Key_Space, Key_Return}, u"text closed"_s},          // typing on forgets the row
        {u"a"_s, {Key_Down, Key_Escape}, u"closed"_s},
        {u"a"_s, {Key_Escape, Key_Down, Key_Down, Key_Return}, u"<a one> closed"_s},  // Down reopens
        {u"a"_s, {Key_Backspace}, u"closed"_s},
    };
    for (const auto &[typed, keys, expected] : rows) {
        type(typed, keys);
        EXPECT_EQ(events(), expected) << keys.size();
        EXPECT_TRUE(m_field.hasFocus());
    }
    type(u"b"_s, {Key_Return});
    EXPECT_EQ(m_field.selectedText(), u"b only"_s);
    EXPECT_TRUE(m_window.isVisible());
    QTest::keyClick(&m_field, Key_Escape);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(SuggestionsSearch, ClosesWhenTheUserGoesElsewhere)
{
    const std::function<void()> ways[] = {[this] { m_button.setFocus(); }, [this] { m_field.hide(); },
                                          [this] { QTest::mousePress(&m_window, Qt::LeftButton); }};
    for (const auto &leave : ways) {
        m_field.show();
        m_field.setFocus();
        type(u"a"_s);
        ASSERT_TRUE(isOpen());
        leave();
        EXPECT_FALSE(isOpen()) << &leave - ways;
    }
    m_field.setText(u"a"_s);
    EXPECT_FALSE(isOpen()) << "set by the program";
}

TEST_F(SuggestionsSearch, ListKeepsBelowTheFieldInTheWindow)
{
    setItems(u"entry "_s.repeated(14).split(u' '));
    type(u"entry"_s);
    EXPECT_EQ(list()->geometry().topLeft(), QPoint(100, 52));
    EXPECT_TRUE(rows().last()->isVisible());
    m_field.move(120, 30);
    EXPECT_EQ(list()->pos(), QPoint(120, 62));

    m_window.resize(400, 200);  // too little room: whole rows, and the keys bring theirs into view
    ASSERT_TRUE(test::waitUntil([this] { return list()->geometry().bottom() < 200; }));
    EXPECT_FALSE(rows().last()->isVisible());
    QTest::keyClick(&m_field, Qt::Key_Up);
    EXPECT_TRUE(rows().last()->isVisible() && !rows().first()->isVisible());
    EXPECT_TRUE(list()->rect().contains(rows().last()->geometry()));
}

TEST_F(SuggestionsSearch, PointerAndAssistiveProgramsChooseARow)
{
    type(u"a"_s);
    const QPoint second = rows()[1]->geometry().center();
    QTest::mouseClick(list(), Qt::RightButton, {}, second);
    EXPECT_EQ(events(), u"open"_s);
    QTest::mouseClick(list(), Qt::LeftButton, {}, second);
    EXPECT_EQ(events(), u"<a two> closed"_s);
    EXPECT_TRUE(m_field.hasFocus());

    type(u"a"_s, {Qt::Key_Down, Qt::Key_Down});
    const auto accessible = [this](int row) { return QAccessible::queryAccessibleInterface(rows()[row]); };
    EXPECT_EQ(accessible(1)->text(QAccessible::Name), u"a two"_s);
    EXPECT_TRUE(accessible(1)->state().selected);
    accessible(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(events(), u"<a three> closed"_s);
}

TEST_F(SuggestionsSearch, DelegateAndRowsMayGoWithTheListOpen)
{
    type(u"a"_s);
    m_field.setMyDelegate(nullptr);
    EXPECT_FALSE(isOpen());
    m_field.setMyDelegate(this);
    type(u"a"_s);
    m_field.setSuggestionRowFactory([](QWidget *parent) { return new Row(parent); });
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(m_field.hasFocus());
}

}  // namespace
