#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/HoverButton.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tarnwell/ui/WindowTitleBar.h"

#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

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

}  // namespace
