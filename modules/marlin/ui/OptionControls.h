#pragma once

#include "modules/marlin/PlanOptions.h"

#include <QObject>

#include <functional>
#include <vector>

class QFormLayout;
class QWidget;

namespace kestrel {

/// Controls for options of a plan, made from their rows and bound to them: they show a plan, and say how the user
/// changes it.
class OptionControls : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Appends a page's controls, or those of these options, to a form.
    void addPage(OptionPage page, QFormLayout *form);
    void add(const PlanOption &option, QFormLayout *form);

    /// What their values are and which of them apply. Emits nothing.
    void show(const TranscodePlan &plan);

signals:
    void changed(const std::function<void(kestrel::TranscodePlan &)> &change);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Bound {
        const PlanOption *option;
        QWidget *control;
        std::function<void(double)> show;
        QFormLayout *form;
    };
    Bound makeSwitch(const PlanOption &option);
    Bound makeChoice(const PlanOption &option);
    Bound makeNumber(const PlanOption &option);
    void tell(const PlanOption &option, double value);

    std::vector<Bound> m_bound;
    bool m_isShowing = false;
};

}  // namespace kestrel
