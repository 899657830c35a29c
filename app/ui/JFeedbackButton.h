#pragma once

#include "tarnwell/ui/HoverButton.h"

namespace kestrel {

class JFeedbackButton;

/// Hears of the pointer over its buttons.
class FeedbackButtonTarget {
public:
    virtual ~FeedbackButtonTarget() = default;
    virtual void onButtonMouseEntered(JFeedbackButton *sender) = 0;
    virtual void onButtonMouseExit(JFeedbackButton *sender) = 0;
};

/// A hover button that reports the pointer's coming and going to its target, and those of the keyboard the same way.
class JFeedbackButton : public tarnwell::HoverButton {
    Q_OBJECT
public:
    using HoverButton::HoverButton;

    /// `target` outlives the button's events, or is taken away with null.
    void setTarget(FeedbackButtonTarget *target) { m_target = target; }
    void onMouseEnterExit(bool entered) override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    FeedbackButtonTarget *m_target = nullptr;
};

}  // namespace kestrel
