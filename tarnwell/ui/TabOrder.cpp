#include "TabOrder.h"

#include <QLayout>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>

namespace kestrel::tarnwell {

namespace {

/// `last` is what Tab reached before.
void appendWidget(QWidget *widget, QWidget *&last);

void appendLayout(const QLayout *layout, QWidget *&last)
{
    for (int index = 0; index < layout->count(); ++index) {
        QLayoutItem *item = layout->itemAt(index);
        if (item->widget())
            appendWidget(item->widget(), last);
        else if (item->layout())
            appendLayout(item->layout(), last);
    }
}

void appendWidget(QWidget *widget, QWidget *&last)
{
    if (const auto *tabs = qobject_cast<QTabWidget *>(widget)) {
        appendWidget(tabs->tabBar(), last);
        for (int index = 0; index < tabs->count(); ++index)
            appendWidget(tabs->widget(index), last);
        return;
    }
    if (widget->focusPolicy() & Qt::TabFocus) {
        if (last)
            QWidget::setTabOrder(last, widget);
        last = widget;
    }
    if (const auto *area = qobject_cast<QScrollArea *>(widget); area && area->widget())
        appendWidget(area->widget(), last);
    else if (widget->layout())
        appendLayout(widget->layout(), last);
}

}  // namespace

void tabInLayoutOrder(QWidget &widget)
{
    QWidget *last = nullptr;
    appendWidget(&widget, last);
}

}  // namespace kestrel::tarnwell
