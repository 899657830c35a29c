#include "TranslateControls.h"

#include "tarnwell/Localization.h"

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
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

void translateEntries(QWidget *widget)
{
    if (auto *box = qobject_cast<QComboBox *>(widget)) {
        for (int i = 0; i < box->count(); ++i)
            box->setItemText(i, AppLocalizedString(box->itemText(i)));
    } else if (auto *tabs = qobject_cast<QTabWidget *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            tabs->setTabText(i, AppLocalizedString(tabs->tabText(i)));
    }
}

}  // namespace

void TranslateControls(QWidget *root)
{
    for (QWidget *widget : QList<QWidget *>{root} + root->findChildren<QWidget *>()) {
        for (const auto &[className, property] : textProperties)
            if (widget->inherits(className))
                translateText(widget, property);
        translateEntries(widget);
    }
}

void TranslateLabels(QWidget *root)
{
    for (QLabel *label : root->findChildren<QLabel *>())
        translateText(label, "text");
}

}  // namespace kestrel::tarnwell
