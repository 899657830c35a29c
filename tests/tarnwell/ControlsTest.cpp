#include "JHoverButton.h"
#include "JTooltipController.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

void activate(QWidget &window)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

class HoverRecorder : public JHoverButton {
public:
    using JHoverButton::JHoverButton;
    QList<bool> seen;

protected:
    void onMouseEnterExit(bool entered) override
    {
        JHoverButton::onMouseEnterExit(entered);
        seen << entered;
    }
};

TEST(JHoverButton, ReportsThePointerOnce)
{
    QWidget window;
    HoverRecorder button(&window);
    button.resize(50, 50);
    window.show();
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&button, &enter);
    QApplication::sendEvent(&button, &enter);
    EXPECT_TRUE(button.isHovered());
    QApplication::sendEvent(&button, &leave);
    EXPECT_EQ(button.seen, (QList{true, false}));
    QApplication::sendEvent(&button, &enter);
    window.hide();  // the pointer cannot leave what is gone
    QApplication::sendEvent(&button, &leave);
    EXPECT_EQ(button.seen, (QList{true, false, true, false}));
}

TEST(JHoverButton, FocusShowsAndIsNotReported)
{
    QWidget window;
    HoverRecorder button(&window), other(&window);
    for (HoverRecorder *each : {&button, &other}) {
        each->setText(u"Settings"_s);
        each->resize(each->sizeHint());
    }
    int clicks = 0;
    QObject::connect(&button, &JHoverButton::clicked, &window, [&] { ++clicks; });
    window.show();
    activate(window);
    other.setFocus();
    const QImage plain = button.grab().toImage();
    button.setFocus();
    EXPECT_NE(button.grab().toImage(), plain);
    EXPECT_TRUE(button.seen.isEmpty());
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(clicks, 1);
}

TEST(JTooltipController, TooltipsBelongToTheKeyWindow)
{
    QWidget other;
    other.show();
    QWidget window;
    JHoverButton button(&window);
    button.setToolTip(u"Starts it"_s);
    window.show();
    JTooltipController::Instance().addWindow(&window);
    const auto askForTooltip = [&] {
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), button.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&button, &event);
        return QToolTip::isVisible();
    };
    activate(window);
    EXPECT_TRUE(askForTooltip());
    activate(other);
    EXPECT_FALSE(QToolTip::isVisible());
    EXPECT_FALSE(askForTooltip());
    activate(window);
    EXPECT_TRUE(askForTooltip());
    QToolTip::hideText();
}

}  // namespace
