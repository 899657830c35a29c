#include "HoverButton.h"

#include "Images.h"
#include "Palette.h"
#include "PressOnReturn.h"

#include <QPainter>

#include <algorithm>

namespace kestrel::tarnwell {

namespace {

constexpr int textMargin = 4;
constexpr int iconSpacing = 6;
constexpr qreal pressedOpacity = 0.7;

}  // namespace

HoverButton::HoverButton(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void HoverButton::setImageNamed(const QString &name, const QString &hoverName)
{
    setIcon(namedIcon(name));
    setIconSize(namedImage(name, devicePixelRatioF()).deviceIndependentSize().toSize());
    m_hoverIcon = hoverName.isEmpty() ? QIcon() : namedIcon(hoverName);
}

QSize HoverButton::sizeHint() const
{
    QSize size = icon().isNull() ? QSize() : iconSize();
    if (!text().isEmpty()) {
        const QSize textSize = fontMetrics().size(Qt::TextShowMnemonic, text());
        const int spacing = size.isEmpty() ? 0 : iconSpacing;
        size = {std::max(size.width(), 0) + spacing + textSize.width() + 2 * textMargin,
                std::max(size.height(), textSize.height() + 2 * textMargin)};
    }
    return size;
}

void HoverButton::onMouseEnterExit(bool)
{
    update();
}

void HoverButton::setHovered(bool isHovered)
{
    if (isHovered == m_isHovered)
        return;
    m_isHovered = isHovered;
    onMouseEnterExit(isHovered);
}

void HoverButton::enterEvent(QEnterEvent *)
{
    setHovered(true);
}

void HoverButton::leaveEvent(QEvent *)
{
    setHovered(false);
}

void HoverButton::hideEvent(QHideEvent *event)
{
    QAbstractButton::hideEvent(event);
    setHovered(false);
}

void HoverButton::keyPressEvent(QKeyEvent *event)
{
    if (!pressOnReturn(*this, *event))
        QAbstractButton::keyPressEvent(event);
}

void HoverButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const bool isLit = m_isHovered && isEnabled();
    if (isDown())
        painter.setOpacity(pressedOpacity);

    QRect place = rect();
    if (!icon().isNull()) {
        const QIcon &shown = isLit && !m_hoverIcon.isNull() ? m_hoverIcon : icon();
        if (!text().isEmpty())
            place.setRect(textMargin, 0, iconSize().width(), height());
        const QSize size = iconSize().boundedTo(place.size());
        QRect iconPlace(QPoint(), size);
        iconPlace.moveCenter(place.center());
        shown.paint(&painter, iconPlace, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
        place.setRect(place.right() + 1 + iconSpacing, 0, width() - place.right() - 1 - iconSpacing - textMargin,
                      height());
    }
    if (!text().isEmpty()) {
        painter.setPen(isLit ? QColor(palette::accent) : QWidget::palette().color(QPalette::ButtonText));
        const int alignment = icon().isNull() ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft;
        painter.drawText(place, alignment | Qt::TextShowMnemonic, text());
    }
    if (hasFocus()) {
        painter.setOpacity(1);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(palette::accent), 2));
        const double radius = text().isEmpty() ? std::min(width(), height()) / 2.0 : 6;
        painter.drawRoundedRect(rect().toRectF().adjusted(1, 1, -1, -1), radius, radius);
    }
}

}  // namespace kestrel::tarnwell
