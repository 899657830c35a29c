#include "JFeedbackButton.h"

namespace kestrel {

void JFeedbackButton::onMouseEnterExit(bool entered)
{
    HoverButton::onMouseEnterExit(entered);
    if (!m_target)
        return;
    if (entered)
        m_target->onButtonMouseEntered(this);
    else
        m_target->onButtonMouseExit(this);
}

void JFeedbackButton::focusInEvent(QFocusEvent *event)
{
    HoverButton::focusInEvent(event);
    if (m_target)
        m_target->onButtonMouseEntered(this);
}

void JFeedbackButton::focusOutEvent(QFocusEvent *event)
{
    HoverButton::focusOutEvent(event);
    if (m_target && !isHovered())
        m_target->onButtonMouseExit(this);
}

}  // namespace kestrel
