#include "FittedImageView.h"

#include "tarnwell/ui/Images.h"

#include <QPainter>

namespace kestrel {

FittedImageView::FittedImageView(QWidget *parent) : QWidget(parent) {}

void FittedImageView::setImage(const QImage &image)
{
    m_image = image;
    m_shown = {};
    update();
}

QSize FittedImageView::sizeHint() const
{
    return {0, 152};
}

void FittedImageView::paintEvent(QPaintEvent *)
{
    const QSizeF own = m_image.deviceIndependentSize();
    if (own.isEmpty())
        return;
    const qreal scale = devicePixelRatioF();
    const QSizeF fitted = own.scaled(own.boundedTo(size()), Qt::KeepAspectRatio);
    const QSize pixels = (fitted * scale).toSize().expandedTo({1, 1});
    if (m_shown.size() != pixels) {
        m_shown = QPixmap::fromImage(m_image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_shown.setDevicePixelRatio(scale);
    }
    QPainter painter(this);
    const QSizeF rest = (QSizeF(size()) - fitted) / 2;
    tarnwell::drawCrisp(painter, {rest.width(), rest.height()}, m_shown);
}

}  // namespace kestrel
