#include "_MenuButtonCell.h"

#include "tarnwell/ui/Palette.h"
#include "tarnwell/ui/PressOnReturn.h"

#include <QPainter>

namespace kestrel {

namespace {

constexpr int titleOffset = 20;
constexpr int titleMargin = 4;

}  // namespace

_MenuButtonCell::_MenuButtonCell(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize _MenuButtonCell::sizeHint() const
{
    const QSize title = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {titleOffset + title.width() + titleMargin, title.height() + 2 * titleMargin};
}

void _MenuButtonCell::keyPressEvent(QKeyEvent *event)
{
    if (!tarnwell::pressOnReturn(*this, *event))
        QAbstractButton::keyPressEvent(event);
}

void _MenuButtonCell::paintEvent(QPaintEvent *)
{
    namespace colors = tarnwell::palette;
    QPainter painter(this);
    if (isDown() || underMouse())
        painter.fillRect(rect(), QColor(isDown() ? colors::line : colors::accentTint));
    painter.setPen(QColor(colors::title));
    painter.drawText(rect().adjusted(titleOffset, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic,
                     text());
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(colors::accent), 2));
        painter.drawRoundedRect(rect().toRectF().adjusted(1, 1, -1, -1), 6, 6);
    }
}

}  // namespace kestrel
