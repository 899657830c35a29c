#include "JJustImageView.h"

#include "Images.h"

#include <QPainter>

namespace kestrel::tarnwell {

JJustImageView::JJustImageView(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void JJustImageView::setImageName(const QString &name)
{
    m_imageName = name;
    updateGeometry();
    update();
}

QSize JJustImageView::sizeHint() const
{
    return namedImage(m_imageName, devicePixelRatioF()).deviceIndependentSize().toSize();
}

void JJustImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QPixmap image = namedImage(m_imageName, devicePixelRatioF());
    const QSizeF own = image.deviceIndependentSize();
    const QSizeF fitted = own.scaled(own.boundedTo(size()), Qt::KeepAspectRatio);
    if (fitted != own) {
        const qreal ratio = image.devicePixelRatio();
        image = image.scaled((fitted * ratio).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
    }
    drawCrisp(painter, QPointF(width() - fitted.width(), height() - fitted.height()) / 2, image);
}

}  // namespace kestrel::tarnwell
