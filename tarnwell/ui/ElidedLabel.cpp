#include "ElidedLabel.h"

#include "tarnwell/HoverText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

namespace kestrel::tarnwell {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(alignment()), option.palette, isEnabled(), shown,
                          foregroundRole());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const bool isCut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), isCut ? hoverTextShowing(text()) : QString(),
                       this);
    return true;
}

}  // namespace kestrel::tarnwell
