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

}  // namespace kestrel
