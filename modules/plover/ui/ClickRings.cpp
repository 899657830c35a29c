#include "ClickRings.h"

#include <QPainter>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int diameter = 48, thickness = 5;
constexpr int looksAfterRelease = 12;
constexpr auto lookInterval = 20ms;

}  // namespace

ClickRings::ClickRings(const X11Keys &keys)
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::BypassWindowManagerHint |
                           Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus | Qt::Tool),
      m_keys(keys)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setObjectName(u"clickRing"_s);
    setFixedSize(diameter, diameter);
    // By its shape, which needs no compositor.
    const QRegion outer(rect(), QRegion::Ellipse);
    setMask(outer.subtracted(QRegion(rect().adjusted(thickness, thickness, -thickness, -thickness), QRegion::Ellipse)));
    connect(&m_timer, &QTimer::timeout, this, &ClickRings::look);
}

void ClickRings::setActive(bool active)
{
    if (active)
        m_timer.start(lookInterval);
    else
        m_timer.stop();
    hide();
}

void ClickRings::look()
{
    const X11Keys::Pointer pointer = m_keys.pointer();
    if (pointer.isPressed) {
        move((QPointF(pointer.position) / devicePixelRatioF()).toPoint() - rect().center());
        m_remaining = looksAfterRelease;
    }
    if (m_remaining > 0)
        --m_remaining;
    if (isVisible() != (m_remaining > 0))
        setVisible(m_remaining > 0);
}

void ClickRings::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor(255, 196, 0));
}

}  // namespace kestrel
