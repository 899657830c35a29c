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
    const QPixmap image = namedImage(m_imageName, devicePixelRatioF());
    const QSizeF size = image.deviceIndependentSize();
    drawCrisp(painter, QPointF(width() - size.width(), height() - size.height()) / 2, image);
}

}  // namespace kestrel::tarnwell
