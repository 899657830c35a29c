#include "Frames.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace kestrel::tarnwell {

namespace {

QRect primaryScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

}  // namespace

foundation::Rect viewFrame(const QWidget *view)
{
    return foundation::toBottomUp(view->geometry(), view->parentWidget()->height());
}

void setViewFrame(QWidget *view, const foundation::Rect &frame)
{
    view->setGeometry(foundation::toTopDown(frame, view->parentWidget()->height()));
}

foundation::Rect windowFrame(const QWidget *window)
{
    const QRect screen = primaryScreen();
    return foundation::toBottomUp(window->geometry().translated(-screen.topLeft()), screen.height());
}

void setWindowFrame(QWidget *window, const foundation::Rect &frame)
{
    const QRect screen = primaryScreen();
    window->setGeometry(foundation::toTopDown(frame, screen.height()).translated(screen.topLeft()));
}

QRect keptOnScreen(QRect place, const QScreen &screen)
{
    const QRect free = screen.availableGeometry();
    place.moveLeft(std::clamp(place.left(), free.left(), std::max(free.left(), free.right() + 1 - place.width())));
    place.moveTop(std::clamp(place.top(), free.top(), std::max(free.top(), free.bottom() + 1 - place.height())));
    return place;
}

QRect fittedToScreen(QRect place, const QScreen &screen)
{
    place.setSize(place.size().boundedTo(screen.availableGeometry().size()));
    return keptOnScreen(place, screen);
}

void leaveRoomForFrame(QWidget *window)
{
    constexpr QSize frame(16, 40);  // of what is seen of desktops, the largest
    window->resize(window->size().boundedTo(window->screen()->availableGeometry().size() - frame));
}

}  // namespace kestrel::tarnwell
