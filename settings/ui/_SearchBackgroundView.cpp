#include "_SearchBackgroundView.h"

#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/Palette.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kestrel {

_SearchBackgroundView::_SearchBackgroundView(QWidget *parent) : QWidget(parent)
{
    connect(qApp, &QApplication::focusChanged, this, qOverload<>(&QWidget::update));
}

void _SearchBackgroundView::paintEvent(QPaintEvent *)
{
    namespace colors = tarnwell::palette;
    constexpr double imageOffset = 22;
    const bool hasKeyboard = QApplication::focusWidget() && isAncestorOf(QApplication::focusWidget());
    const QRectF capsule = rect().toRectF().adjusted(1, 1, -1, -1);
    const double radius = 0.5 * capsule.height();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(hasKeyboard ? colors::accent : colors::strongLine), 2));
    painter.drawRoundedRect(capsule, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(colors::surface));
    // The ring of the keyboard keeps both its points, the outline the outer one.
    const double inset = hasKeyboard ? 1 : 0;
    painter.drawRoundedRect(capsule.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
    painter.restore();

    const QPixmap image = tarnwell::namedImage(u"kestrel_set_search"_s, devicePixelRatioF());
    const double top = 0.5 * (height() - image.deviceIndependentSize().height());
    tarnwell::drawCrisp(painter, QPointF(width() - imageOffset, top), image);
}

}  // namespace kestrel
