#include "TranslateControls.h"

#include "tarnwell/Localization.h"

#include <QLabel>
#include <QVariant>

namespace kestrel::tarnwell {

namespace {

struct TextProperty {
    const char *className;
    const char *property;
};

constexpr TextProperty textProperties[] = {
    {"QLabel", "text"},     {"QAbstractButton", "text"},   {"QGroupBox", "title"},     {"QLineEdit", "placeholderText"},
    {"QWidget", "toolTip"}, {"QWidget", "accessibleName"}, {"QWidget", "windowTitle"},
};

void translateText(QWidget *widget, const char *property)
{
    const QString key = widget->property(property).toString();
    if (const QString text = AppLocalizedString(key); text != key)
        widget->setProperty(property, text);
}

}  // namespace

void TranslateControls(QWidget *root)
{
    for (QWidget *widget : QList<QWidget *>{root} + root->findChildren<QWidget *>())
        for (const auto &[className, property] : textProperties)
            if (widget->inherits(className))
                translateText(widget, property);
}

void TranslateLabels(QWidget *root)
{
    for (QLabel *label : root->findChildren<QLabel *>())
        translateText(label, "text");
}

}  // namespace kestrel::tarnwell
