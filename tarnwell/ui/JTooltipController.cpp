#include "JTooltipController.h"

#include <QApplication>
#include <QEvent>
#include <QToolTip>
#include <QWidget>

namespace kestrel::tarnwell {

JTooltipController &JTooltipController::Instance()
{
    static JTooltipController controller;
    return controller;
}

void JTooltipController::addWindow(QWidget *window)
{
    if (m_windows.contains(window))
        return;
    // Requests for tooltips go to the control under the pointer: only the application sees them all.
    if (m_windows.isEmpty())
        qApp->installEventFilter(this);
    m_windows.append(window);
    connect(window, &QObject::destroyed, this, [this, window] { m_windows.removeOne(window); });
}

bool JTooltipController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip && event->type() != QEvent::WindowDeactivate)
        return false;
    auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || !m_windows.contains(widget->window()))
        return false;
    if (event->type() == QEvent::ToolTip)
        return !widget->isActiveWindow();
    QToolTip::hideText();
    return false;
}

}  // namespace kestrel::tarnwell
