#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/HoverButton.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tarnwell/ui/WindowTitleBar.h"

#include <QAccessible>
#include <QActionGroup>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;
using kestrel::foundation::Rect;

namespace {

TEST(TitledWindow, FramesAreExactBeforeAndAfterShowing)
{
    TitledWindow window;
    const int screenHeight = QGuiApplication::primaryScreen()->geometry().height();
    for (const bool isShown : {false, true}) {
        window.setVisible(isShown);
        for (const Rect &frame : {Rect(100, 100, 700, 500), Rect(-20, 30, 64, 48)}) {
            window.setFrame(frame);
            EXPECT_EQ(window.frame(), frame) << isShown;
            EXPECT_EQ(window.y() + window.height(), screenHeight - int(frame.origin.y));
            EXPECT_EQ(window.contentView()->size(), window.size() - QSize(0, 24));
        }
    }
    window.setFrame({0.4, 10.6, 100, 100});
    window.setTitleBarHeight(30);
    EXPECT_EQ(window.frame(), Rect(0, 11, 100, 100));
    EXPECT_EQ(window.contentView()->geometry(), QRect(0, 30, 100, 70));
    QWidget view(window.contentView());
    setViewFrame(&view, {10, 20, 30, 40});
    EXPECT_EQ(view.geometry(), QRect(10, 10, 30, 40));
}

TEST(TitledWindow, ClosesByRequestUnlessRefused)
{
    TitledWindow window;
    QSignalSpy willClose(&window, &TitledWindow::willClose);
    HoverButton *button = window.titleBarView()->button(TitledWindow::WindowButton::Close);
    window.show();
    bool allows = false;
    int actions = 0;
    window.setShouldClose([&] { return allows; });
    button->click();
    EXPECT_TRUE(window.isVisible() && willClose.isEmpty());
    allows = true;
    window.setCloseAction([&] { ++actions; });
    button->click();
    EXPECT_TRUE(window.isVisible() && actions == 1);
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(willClose.size() == 1 && actions == 1);
    window.setCloseAction({});
    window.makeKeyAndOrderFront();
    button->click();
    EXPECT_TRUE(!window.isVisible() && willClose.size() == 2);
}

TEST(TitledWindow, ComesIntoViewWithItsContentAndIsSizedOnlyWhereItMayBe)
{
    TitledWindow window;
    const QScreen &screen = *QGuiApplication::primaryScreen();
    const QRect free = screen.availableGeometry();
    const struct {
        const char *name;
        QRect place, expected;
    } rows[] = {{"inside", {10, 10, 300, 200}, {10, 10, 300, 200}},
                {"above the upper edge", {10, -40, 300, 200}, {10, 0, 300, 200}},
                {"beyond the corner",
                 {free.width() - 10, free.height() - 10, 300, 200},
                 {free.width() - 300, free.height() - 200, 300, 200}},
                {"too large", {-50, 20, free.width() + 90, free.height() + 9}, free}};
    QWidget view(window.contentView());
    window.setFillingView(&view);
    for (const auto &[name, place, expected] : rows) {
        window.setGeometry(place);
        window.comeIntoView(screen);
        EXPECT_EQ(window.geometry(), expected) << name;
        EXPECT_EQ(view.geometry(), window.contentView()->rect()) << name;
    }
    window.setFrame({0, 0, 300, 200});
    window.setResizable(false);
    window.resize(500, 500);
    EXPECT_EQ(window.size(), QSize(300, 200));
    window.setFrame({0, 0, 400, 100});
    EXPECT_EQ(window.frame(), Rect(0, 0, 400, 100));
}

/// Each window's entries as assistive programs find them.
TEST(TitledWindow, MenusAreEachWindowsOwnAndOneInWhatTheyDo)
{
    QMenu menu(u"Help"_s);
    int calls = 0;
    QAction *entry = menu.addAction(u"About"_s, &menu, [&] { ++calls; });
    QMenu *languages = menu.addMenu(u"Language"_s);
    QActionGroup choices(languages);
    for (const QString &language : {u"English"_s, u"Deutsch"_s}) {
        QAction *choice = languages->addAction(language);
        choice->setCheckable(true);
        choices.addAction(choice);
    }
    languages->actions().at(0)->setChecked(true);
    std::array<TitledWindow, 2> windows;
    for (TitledWindow &window : windows) {
        window.setMenus({&menu});
        window.setGeometry(0, 0, 400, 300);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(window.windowHandle(), Qt::Key_F10);
        QMenu *own = window.titleBarView()->menus().constFirst();
        ASSERT_TRUE(QTest::qWaitFor([&] { return own->isVisible(); }));
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(own);
        for (int i = 0; i < accessible->childCount(); ++i) {
            EXPECT_FALSE(accessible->child(i)->state().invisible) << i;
            EXPECT_EQ(accessible->child(i)->parent()->object(), own) << i;
        }
        own->actions().at(0)->trigger();
        QMenu *choicesHere = own->actions().at(1)->menu<QMenu *>();
        choicesHere->actions().at(1)->trigger();
        choicesHere->actions().at(1)->trigger();
        EXPECT_TRUE(choicesHere->actions().at(1)->isChecked() && languages->actions().at(1)->isChecked());
        EXPECT_FALSE(choicesHere->actions().at(0)->isChecked());
        own->close();
    }
    EXPECT_EQ(calls, 2);
    entry->setEnabled(false);
    for (const TitledWindow &window : windows)
        EXPECT_FALSE(window.titleBarView()->menus().constFirst()->actions().at(0)->isEnabled());
}

}  // namespace
