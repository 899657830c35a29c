#include "tarnwell/ui/JPresentWindowController.h"

#include "tarnwell/ui/TitledWindow.h"
#include "tarnwell/ui/WindowTitleBar.h"
#include "tests/support/TestEnvironment.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;
using namespace kestrel::tarnwell;

namespace {

/// A sheet of 300 × 120 with one field; notes what happens to it.
struct NotingController final : JPresentWindowController {
    void onCloseAction() override
    {
        events += u"close "_s;
        if (!refusesToClose)
            JPresentWindowController::onCloseAction();
    }
    void windowDidLoad(QDialog *window) override
    {
        events += u"load "_s;
        window->resize(300, 120);
        field = new QLineEdit;
        (new QVBoxLayout(window))->addWidget(field);
    }
    void windowWillPresent() override { events += u"present "_s; }

    QString events;
    bool refusesToClose = false;
    QLineEdit *field = nullptr;
};

class PresentedSheet : public testing::Test {
protected:
    PresentedSheet() { openAt(*m_window, {150, 100, 500, 400}); }

    static void openAt(TitledWindow &window, const QRect &place)
    {
        window.setGeometry(place);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QPoint corner() { return m_controller.window()->pos(); }

    std::unique_ptr<TitledWindow> m_window = std::make_unique<TitledWindow>();
    NotingController m_controller;
};

TEST_F(PresentedSheet, HangsBelowTheTitleBarWithTheKeyboardAndFollows)
{
    m_controller.presentForWindow(m_window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_controller.window()));
    EXPECT_TRUE(test::waitUntil([this] { return QApplication::focusWidget() == m_controller.field; }));
    EXPECT_EQ(corner(), QPoint(150 + (500 - 300) / 2, 100 + 24));
    m_window->move(200, 180);
    QCoreApplication::processEvents();
    EXPECT_EQ(corner(), QPoint(300, 204));
    m_window->move(-300, 180);  // mostly off the screen: the sheet stays on it
    QCoreApplication::processEvents();
    EXPECT_EQ(corner(), QPoint(0, 204));
    m_controller.onCloseAction();
    EXPECT_TRUE(test::waitUntil([this] { return m_window->isActiveWindow(); }));
}

TEST_F(PresentedSheet, EveryWayToCloseIsTheClosingAction)
{
    const std::function<void()> ways[] = {[this] { QTest::keyClick(m_controller.field, Qt::Key_Escape); },
                                          [this] { m_controller.window()->close(); }, [this] { m_window->hide(); },
                                          [this] { m_window.reset(); }};
    for (const auto &close : ways) {
        m_window->show();
        m_controller.presentForWindow(m_window.get());
        m_controller.events.clear();
        close();
        EXPECT_EQ(m_controller.events, u"close "_s) << &close - ways;
        EXPECT_FALSE(m_controller.isPresented()) << &close - ways;
    }
    // The sheet outlives the one that it was presented for.
    TitledWindow next;
    openAt(next, {150, 100, 500, 400});
    m_controller.presentForWindow(&next);
    EXPECT_EQ(m_controller.events, u"close present "_s);
    m_controller.refusesToClose = true;
    QTest::keyClick(m_controller.field, Qt::Key_Escape);
    m_controller.window()->close();
    EXPECT_TRUE(m_controller.isPresented());
    EXPECT_EQ(m_controller.events, u"close present close close "_s);
}

TEST_F(PresentedSheet, ComesOverToAnotherWindow)
{
    TitledWindow other;
    openAt(other, {0, 0, 400, 300});
    m_controller.presentForWindow(m_window.get());
    m_controller.presentForWindow(m_window.get());
    m_controller.presentForWindow(&other);
    EXPECT_EQ(m_controller.events, u"load present close present "_s);
    m_window->move(300, 300);
    m_window->hide();
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_controller.isPresented());
    EXPECT_EQ(corner(), QPoint(50, 24));
}

TEST_F(PresentedSheet, KeepsTheContentOutOfReachAndTheMenusInReach)
{
    QMenu menu(u"Kestrel"_s);
    int quits = 0;
    QAction *quit = menu.addAction(u"Quit"_s, &menu, [&] { ++quits; });
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    m_window->setMenus({&menu});
    QPushButton button(u"Convert"_s, m_window->contentView());
    button.setGeometry(0, 300, 100, 50);
    button.show();
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++clicks; });
    QWindow *handle = m_window->windowHandle();
    const QPoint onButton = button.mapTo(m_window.get(), QPoint(50, 25));
    QMenu *shown = m_window->titleBarView()->menus().constFirst();
    auto *bar = m_window->findChild<QMenuBar *>();
    const QPoint onMenu = bar->mapTo(m_window.get(), bar->actionGeometry(shown->menuAction()).center());
    const auto clickBoth = [&] {
        QTest::mouseClick(handle, Qt::LeftButton, {}, onButton);
        QTest::mousePress(handle, Qt::LeftButton, {}, onMenu);
        const bool opens = test::waitUntil([&] { return shown->isVisible(); }, 1000);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, onMenu);
        shown->close();
        return opens;
    };
    m_controller.presentForWindow(m_window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_controller.window()));
    QTest::keyClick(m_controller.window()->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    EXPECT_TRUE(clickBoth());
    EXPECT_EQ(clicks, 0);
    QTest::mouseClick(handle, Qt::LeftButton, {}, {16, 12});  // the close button
    EXPECT_TRUE(m_window->isVisible());
    m_window->activateWindow();
    EXPECT_TRUE(test::waitUntil([this] { return m_controller.window()->isActiveWindow(); }));
    QTest::keyClick(m_controller.window()->windowHandle(), Qt::Key_F10);
    EXPECT_TRUE(test::waitUntil([&] { return shown->isVisible(); }));
    shown->close();

    m_controller.onCloseAction();
    EXPECT_TRUE(clickBoth());
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(m_controller.window()->actions().contains(quit));
}

}  // namespace
