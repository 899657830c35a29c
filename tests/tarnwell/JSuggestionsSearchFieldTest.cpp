#include "JSuggestionsSearchField.h"

#include "SuggestionList.h"
#include "TestEnvironment.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;
using namespace kestrel::tarnwell;

namespace {

struct Entry : SuggestionItem {
    explicit Entry(const QString &text_) : text(text_) {}
    QString contents() const override { return text; }
    QString text;
};

SuggestionItems entries(const QStringList &texts)
{
    SuggestionItems items;
    for (const QString &text : texts)
        items.append(std::make_shared<Entry>(text));
    return items;
}

QStringList contents(const SuggestionItems &items)
{
    QStringList texts;
    for (const auto &item : items)
        texts.append(item->contents());
    return texts;
}

class Row : public JSuggestionItemView {
public:
    explicit Row(QWidget *parent) : JSuggestionItemView(parent), m_label(new QLabel)
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(8, 0, 8, 0);
        layout->addWidget(m_label);
    }
    void setItem(const SuggestionItem &item) override { m_label->setText(item.contents()); }

protected:
    void onHighlightChanged() override {}

private:
    QLabel *m_label;
};

TEST(SuggestionFilter, EveryWordInAnyOrderAndCase)
{
    const SuggestionItems items = entries({u"video folder"_s, u"video music folder"_s, u"notify"_s, u"Straße"_s});
    const struct {
        const char *name;
        QString typed;
        QStringList offered;
    } cases[] = {
        {"nothing", u""_s, {}},
        {"blanks", u" \t "_s, {}},
        {"in table order", u"fold"_s, {u"video folder"_s, u"video music folder"_s}},
        {"words turned round", u"FOLDER  mus "_s, {u"video music folder"_s}},
        {"one word missing", u"video notify"_s, {}},
        {"not a pattern", u".*"_s, {}},
        {"beyond ASCII", u"STRAß"_s, {u"Straße"_s}},
    };
    for (const auto &[name, typed, offered] : cases)
        EXPECT_EQ(contents(GeneralSuggestionFilterSimple(items, typed)), offered) << name;
}

class SuggestionsSearch : public testing::Test, public SuggestionsSearchDelegate {
protected:
    SuggestionsSearch()
    {
        m_window.resize(400, 500);
        m_field = new JSuggestionsSearchField(&m_window);
        m_field->setGeometry(100, 20, 200, 28);
        m_button = new QPushButton(&m_window);  // pressed by an Enter that the field leaves unused
        m_button->setGeometry(10, 460, 80, 28);
        QObject::connect(m_button, &QPushButton::clicked, m_button, [this] { m_events += u"button "_s; });
        m_field->setMyDelegate(this);
        m_field->setSuggestionRowFactory([](QWidget *parent) { return new Row(parent); });
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field->setFocus();
    }
    ~SuggestionsSearch() override { m_field->setMyDelegate(nullptr); }

    SuggestionItems onFilterSuggestionsWithText(const QString &text) override
    {
        return GeneralSuggestionFilterSimple(m_items, text);
    }
    void onSearchFieldValueChanged(const SuggestionItem *item) override
    {
        m_events += item ? u"<%1> "_s.arg(item->contents()) : u"text "_s;
    }

    SuggestionList *list() { return m_window.findChild<SuggestionList *>(); }
    bool isOpen() { return list() && list()->isVisible(); }
    QList<JSuggestionItemView *> rows() { return list()->findChildren<JSuggestionItemView *>(); }
    void type(const QString &text)
    {
        m_field->clear();
        QTest::keyClicks(m_field, text);
    }
    void keys(std::initializer_list<Qt::Key> sequence)
    {
        for (const Qt::Key key : sequence)
            QTest::keyClick(m_field, key);
    }
    /// What happened since it was last asked.
    QString events() { return std::exchange(m_events, {}); }

    SuggestionItems m_items = entries({u"a one"_s, u"a two"_s, u"a three"_s, u"b only"_s});
    QDialog m_window;
    JSuggestionsSearchField *m_field;
    QPushButton *m_button;
    QString m_events;
};

TEST_F(SuggestionsSearch, Keys)
{
    using K = Qt::Key;
    const struct {
        const char *name;
        QString typed;
        std::vector<K> keys;
        QString events;
        bool isOpen;
    } cases[] = {
        {"list opens", u"a"_s, {}, u""_s, true},
        {"nothing matches", u"zzz"_s, {}, u""_s, false},
        {"typed text is committed", u"a"_s, {K::Key_Return}, u"text "_s, false},
        {"text without a match", u"zzz"_s, {K::Key_Enter}, u"text "_s, false},
        {"first", u"a"_s, {K::Key_Down, K::Key_Return}, u"<a one> "_s, false},
        {"last by Up", u"a"_s, {K::Key_Up, K::Key_Return}, u"<a three> "_s, false},
        {"ends hold", u"a"_s, {K::Key_Up, K::Key_Down, K::Key_Up, K::Key_Return}, u"<a two> "_s, false},
        {"the only one", u"b"_s, {K::Key_Return}, u"<b only> "_s, false},
        {"the only one with Down", u"b"_s, {K::Key_Down, K::Key_Return}, u"<b only> "_s, false},
        {"typing on forgets the row", u"a"_s, {K::Key_Down, K::Key_Space, K::Key_Return}, u"text "_s, false},
        {"Escape closes the list", u"a"_s, {K::Key_Down, K::Key_Escape}, u""_s, false},
        {"Down opens it again", u"a"_s, {K::Key_Escape, K::Key_Down, K::Key_Down, K::Key_Return}, u"<a one> "_s, false},
        {"nothing is left typed", u"a"_s, {K::Key_Backspace}, u""_s, false},
    };
    for (const auto &[name, typed, sequence, expected, open] : cases) {
        type(typed);
        for (const K key : sequence)
            keys({key});
        EXPECT_EQ(events(), expected) << name;
        EXPECT_EQ(isOpen(), open) << name;
        EXPECT_TRUE(m_field->hasFocus()) << name;
    }
    EXPECT_TRUE(m_window.isVisible());
    type(u"b"_s);
    keys({K::Key_Return});
    EXPECT_EQ(m_field->text(), u"b only"_s);
    EXPECT_EQ(m_field->selectedText(), u"b only"_s);
    keys({K::Key_Escape});
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(SuggestionsSearch, Mouse)
{
    type(u"a"_s);
    const QPoint second = rows()[1]->geometry().center();
    QTest::mouseMove(list(), second);
    EXPECT_TRUE(test::waitUntil([this] { return rows()[1]->isHighlighted(); }));
    QTest::mouseClick(list(), Qt::RightButton, {}, second);
    EXPECT_EQ(events(), u""_s);
    QTest::mouseClick(list(), Qt::LeftButton, {}, second);
    EXPECT_EQ(events(), u"<a two> "_s);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(m_field->hasFocus());
}

TEST_F(SuggestionsSearch, ClosesWhenTheUserGoesElsewhere)
{
    const struct {
        const char *name;
        std::function<void()> leave;
    } ways[] = {
        {"focus", [this] { m_button->setFocus(); }},
        {"a click beside it",
         [this] {
             QTest::mousePress(&m_window, Qt::LeftButton, {}, {5, 5});
         }},
        {"the field is hidden", [this] { m_field->hide(); }},
        {"another window",
         [this] {
             QDialog other;
             other.show();
             EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
         }},
    };
    for (const auto &[name, leave] : ways) {
        m_field->show();
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field->setFocus();
        type(u"a"_s);
        ASSERT_TRUE(isOpen()) << name;
        leave();
        EXPECT_FALSE(isOpen()) << name;
    }
    m_field->setText(u"a"_s);
    EXPECT_FALSE(isOpen()) << "set by the program";
}

TEST_F(SuggestionsSearch, ListKeepsBelowTheFieldInTheWindow)
{
    QStringList texts;
    for (int i = 0; i < 14; ++i)
        texts.append(u"entry %1"_s.arg(i));
    m_items = entries(texts);
    type(u"entry"_s);
    EXPECT_EQ(list()->geometry().topLeft(), QPoint(100, 52));
    EXPECT_EQ(list()->width(), 200);
    EXPECT_TRUE(rows().last()->isVisible());
    m_field->move(120, 30);
    EXPECT_EQ(list()->pos(), QPoint(120, 62));

    m_window.resize(400, 200);  // too little room: whole rows, and the keys bring theirs into view
    ASSERT_TRUE(test::waitUntil([this] { return list()->geometry().bottom() < 200; }));
    EXPECT_FALSE(rows().last()->isVisible());
    keys({Qt::Key_Up});
    EXPECT_TRUE(rows().last()->isVisible());
    EXPECT_FALSE(rows().first()->isVisible());
    EXPECT_TRUE(list()->rect().contains(rows().last()->geometry()));
    type(u"entry 13"_s);
    EXPECT_EQ(rows().size(), 1);
    EXPECT_TRUE(list()->rect().contains(rows().first()->geometry()));
}

TEST_F(SuggestionsSearch, IsAListToAssistivePrograms)
{
    type(u"a"_s);
    keys({Qt::Key_Down, Qt::Key_Down});
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(list());
    EXPECT_EQ(accessible->role(), QAccessible::List);
    QAccessibleInterface *row = QAccessible::queryAccessibleInterface(rows()[1]);
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_EQ(row->text(QAccessible::Name), u"a two"_s);
    EXPECT_TRUE(row->state().selected);
    EXPECT_EQ(row->parent(), accessible);
    QAccessible::queryAccessibleInterface(rows()[2])->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    EXPECT_EQ(events(), u"<a three> "_s);
}

TEST_F(SuggestionsSearch, DelegateRowsAndFieldMayGoWithTheListOpen)
{
    type(u"a"_s);
    m_field->setMyDelegate(nullptr);
    EXPECT_FALSE(isOpen());
    m_field->setMyDelegate(this);
    type(u"a"_s);
    m_field->setSuggestionRowFactory([](QWidget *parent) { return new Row(parent); });
    EXPECT_EQ(list(), nullptr);
    EXPECT_TRUE(m_field->hasFocus());
    type(u"a"_s);
    EXPECT_TRUE(isOpen());
    auto *field = new JSuggestionsSearchField(&m_window);
    field->setMyDelegate(this);
    field->setSuggestionRowFactory([](QWidget *parent) { return new Row(parent); });
    field->show();
    field->setFocus();
    QTest::keyClicks(field, u"a"_s);
    EXPECT_EQ(m_window.findChildren<SuggestionList *>().size(), 2);
    delete field;
    EXPECT_EQ(m_window.findChildren<SuggestionList *>().size(), 1);
}

}  // namespace
