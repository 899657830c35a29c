#include "_SettingScrollView.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>

namespace kestrel {

_SettingScrollView::_SettingScrollView(QWidget *parent) : QScrollArea(parent)
{
    verticalScrollBar()->installEventFilter(this);
}

void _SettingScrollView::keepWheelFrom(QWidget *control)
{
    m_keptFromWheel.append(control);
    control->installEventFilter(this);
}

foundation::Rect _SettingScrollView::documentVisibleRect() const
{
    const QRect visible = viewport()->rect().translated(horizontalScrollBar()->value(), verticalScrollBar()->value());
    return foundation::toBottomUp(visible, widget()->height());
}

void _SettingScrollView::scrollToPoint(double y)
{
    verticalScrollBar()->setValue(qRound(widget()->height() - viewport()->height() - y));
}

bool _SettingScrollView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QScrollArea::eventFilter(watched, event);
    if (m_keptFromWheel.contains(watched)) {
        QCoreApplication::sendEvent(viewport(), event);
        return true;
    }
    // The page hands its own wheel events on to the bar.
    if (watched != verticalScrollBar())
        return QScrollArea::eventFilter(watched, event);
    verticalScrollBar()->event(event);
    if (m_myTarget)
        m_myTarget();
    return true;
}

}  // namespace kestrel
