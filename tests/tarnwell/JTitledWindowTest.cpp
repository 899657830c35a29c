#include "Frames.h"
#include "JHoverButton.h"
#include "JTitledWindow.h"
#include "TestEnvironment.h"
#include "WindowTitleBar.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;
using kestrel::foundation::Rect;
using WindowButton = JTitledWindow::WindowButton;

namespace {

JHoverButton *button(const JTitledWindow &window, WindowButton which)
{
    return window.titleBarView()->button(which);
}

void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    const QPoint end = widget->mapToGlobal(to);
    QMouseEvent move(QEvent::MouseMove, to, end, Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, widget->mapFromGlobal(end));
}

TEST(JTitledWindow, FramesAreExactBeforeAndAfterShowing)
{
    JTitledWindow window;
    const int screenHeight = QGuiApplication::primaryScreen()->geometry().height();
    for (const bool isShown : {false, true}) {
        window.setVisible(isShown);
        for (const Rect &frame : {Rect(100, 100, 700, 500), Rect(50, 50, 600, 424), Rect(-20, 30, 64, 48)}) {
            window.setFrame(frame);
            EXPECT_EQ(window.frame(), frame) << isShown;
            EXPECT_EQ(window.y() + window.height(), screenHeight - int(frame.origin.y));
            EXPECT_EQ(window.contentView()->geometry(),
                      QRect(0, 24, int(frame.size.width), int(frame.size.height) - 24));
        }
    }
    window.setFrame({0.4, 10.6, 100, 100});
    EXPECT_EQ(window.frame(), Rect(0, 11, 100, 100));

    window.setTitleBarHeight(30);
    EXPECT_EQ(window.frame(), Rect(0, 11, 100, 100));
    EXPECT_EQ(window.contentView()->geometry(), QRect(0, 30, 100, 70));
    QWidget view(window.contentView());
    setViewFrame(&view, {10, 20, 30, 40});
    EXPECT_EQ(view.geometry(), QRect(10, 10, 30, 40));
    EXPECT_EQ(viewFrame(&view), Rect(10, 20, 30, 40));
}

TEST(JTitledWindow, ClosesByRequestUnlessRefused)
{
    JTitledWindow window;
    QSignalSpy willClose(&window, &JTitledWindow::willClose);
    window.show();
    bool allows = false;
    window.setShouldClose([&] { return allows; });
    button(window, WindowButton::Close)->click();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(willClose.isEmpty());

    allows = true;
    int actions = 0;
    window.setCloseAction([&] { ++actions; });
    button(window, WindowButton::Close)->click();
    EXPECT_EQ(actions, 1);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.close());
    EXPECT_EQ(willClose.size(), 1);
    EXPECT_EQ(actions, 1);

    window.setCloseAction({});
    window.makeKeyAndOrderFront();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    button(window, WindowButton::Close)->click();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(willClose.size(), 2);
}

TEST(JTitledWindow, ZoomsToTheScreenAndBack)
{
    JTitledWindow window;
    const Rect frame(100, 100, 300, 200);
    window.setFrame(frame);
    window.show();
    button(window, WindowButton::Zoom)->click();
    EXPECT_EQ(window.geometry(), window.screen()->availableGeometry());
    EXPECT_EQ(window.contentView()->width(), window.width());
    QTest::mouseDClick(window.titleBarView(), Qt::LeftButton, {}, QPoint(250, 12));
    EXPECT_EQ(window.frame(), frame);

    window.zoom();
    window.setFrame(frame);  // no longer zoomed
    window.zoom();
    EXPECT_EQ(window.geometry(), window.screen()->availableGeometry());
    window.zoom();
    window.setButtonVisible(WindowButton::Zoom, false);
    QTest::mouseDClick(window.titleBarView(), Qt::LeftButton, {}, QPoint(250, 12));
    EXPECT_EQ(window.frame(), frame);
}

TEST(JTitledWindow, MovesByItsTitleBarAndByItsBackgroundOnDemand)
{
    JTitledWindow window;
    window.setFrame({100, 100, 300, 200});
    window.show();
    const QPoint start = window.pos();
    drag(window.titleBarView(), {200, 10}, {240, 40});
    EXPECT_EQ(window.pos() - start, QPoint(40, 30));
    drag(window.titleBarView(), {200, 10}, {202, 10});  // a click with an unsteady hand
    drag(window.contentView(), {50, 50}, {90, 80});
    EXPECT_EQ(window.pos() - start, QPoint(40, 30));
    window.setMovableByWindowBackground(true);
    drag(window.contentView(), {50, 50}, {10, 20});
    EXPECT_EQ(window.pos(), start);
    QPushButton control(window.contentView());
    control.show();
    drag(&control, {2, 2}, {40, 40});
    EXPECT_EQ(window.pos(), start);
}

TEST(JTitledWindow, KeyboardStartsInTheContent)
{
    JTitledWindow window;
    QPushButton first(window.contentView());
    for (int showing = 0; showing < 2; ++showing) {
        window.makeKeyAndOrderFront();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_FALSE(window.titleBarView()->isAncestorOf(window.focusWidget()));
        QTest::keyClick(window.focusWidget(), Qt::Key_Space);
        EXPECT_TRUE(window.isVisible());
        button(window, WindowButton::Close)->setFocus();
        window.hide();
    }
    window.makeKeyAndOrderFront();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &first);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Window);
    for (const WindowButton which : {WindowButton::Close, WindowButton::Minimize, WindowButton::Zoom}) {
        EXPECT_FALSE(button(window, which)->accessibleName().isEmpty());
        EXPECT_TRUE(button(window, which)->focusPolicy() & Qt::TabFocus);
    }
}

TEST(JTitledWindow, TitleBarHoldsMenusAndAnotherBackground)
{
    JTitledWindow window;
    window.setFrame({0, 0, 400, 200});
    QMenu file(u"File"_s), help(u"Help"_s);
    window.setMenus({&file, &help});
    window.setMenus({&help, &file});
    auto *menuBar = window.findChild<QMenuBar *>();
    ASSERT_TRUE(menuBar);
    EXPECT_EQ(menuBar->actions(), (QList{help.menuAction(), file.menuAction()}));
    EXPECT_GT(menuBar->x(), button(window, WindowButton::Zoom)->geometry().right());

    auto *background = new QWidget;
    background->setAutoFillBackground(true);
    background->setPalette(QColor(Qt::red));
    window.titleBarView()->setBackgroundView(background);
    window.setTitleBarHeight(30);
    window.setFrame({0, 0, 500, 200});
    window.show();
    EXPECT_EQ(background->geometry(), QRect(0, 0, 500, 30));
    EXPECT_EQ(window.grab().toImage().pixelColor(490, 15), QColor(Qt::red));
    EXPECT_TRUE(window.childAt(button(window, WindowButton::Close)->geometry().center())->inherits("QAbstractButton"));
}

}  // namespace
