#include "OptionControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr double sameChoice = 0.01;

}  // namespace

void OptionControls::addPage(OptionPage page, QFormLayout *form)
{
    for (const PlanOption &option : planOptions()) {
        if (option.page == page)
            add(option, form);
    }
}

/// Labels stand above their controls: in a narrow panel there is no room beside them in every language.
void OptionControls::add(const PlanOption &option, QFormLayout *form)
{
    Bound bound = option.kind == PlanOption::Kind::Switch   ? makeSwitch(option)
                  : option.kind == PlanOption::Kind::Choice ? makeChoice(option)
                                                            : makeNumber(option);
    bound.control->setObjectName(QString::fromLatin1(option.id));
    bound.control->setAccessibleName(option.label.localized());
    bound.control->setFocusPolicy(Qt::StrongFocus);
    bound.control->installEventFilter(this);
    if (option.kind == PlanOption::Kind::Switch) {
        form->addRow(bound.control);
    } else {
        auto *label = new QLabel(option.label.localized());
        label->setTextFormat(Qt::PlainText);
        label->setBuddy(bound.control);
        form->addRow(label, bound.control);
    }
    bound.form = form;
    m_bound.push_back(bound);
}

OptionControls::Bound OptionControls::makeSwitch(const PlanOption &option)
{
    auto *box = new QCheckBox(option.label.localized());
    connect(box, &QCheckBox::toggled, this, [this, &option](bool isOn) { tell(option, isOn ? 1 : 0); });
    return {&option, box, [box](double value) { box->setChecked(value != 0); }, nullptr};
}

OptionControls::Bound OptionControls::makeChoice(const PlanOption &option)
{
    auto *box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const OptionChoice &choice : option.choices)
        box->addItem(choice.text.localized(), choice.value);
    connect(box, &QComboBox::activated, this,
            [this, &option, box](int index) { tell(option, box->itemData(index).toDouble()); });
    return {&option, box,
            [box](double value) {
                for (int i = 0; i < box->count(); ++i) {
                    if (std::abs(box->itemData(i).toDouble() - value) < sameChoice)
                        box->setCurrentIndex(i);
                }
            },
            nullptr};
}

OptionControls::Bound OptionControls::makeNumber(const PlanOption &option)
{
    auto *box = new QDoubleSpinBox;
    box->setDecimals(option.decimals);
    box->setRange(option.least, option.most);
    box->setSingleStep(option.step);
    box->setSpecialValueText(option.atLeast.localized());
    const QStringList around = option.unit.localized().split(u"%1"_s);
    box->setPrefix(around.value(0));
    box->setSuffix(around.value(1));
    box->setKeyboardTracking(false);
    connect(box, &QDoubleSpinBox::valueChanged, this, [this, &option](double value) { tell(option, value); });
    return {&option, box, [box](double value) { box->setValue(value); }, nullptr};
}

void OptionControls::tell(const PlanOption &option, double value)
{
    if (!m_isShowing)
        emit changed([&option, value](TranscodePlan &plan) { option.set(plan, value); });
}

/// A wheel that scrolls the panel must not change what it passes over.
bool OptionControls::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

void OptionControls::show(const TranscodePlan &plan)
{
    m_isShowing = true;
    for (const Bound &bound : m_bound) {
        bound.show(bound.option->get(plan));
        const bool applies = !bound.option->applies || bound.option->applies(plan);
        bound.control->setEnabled(applies);
        // Numbers that belong to a choice come and go with it.
        if (bound.option->kind == PlanOption::Kind::Number)
            bound.form->setRowVisible(bound.control, applies);
    }
    m_isShowing = false;
}

}  // namespace kestrel
