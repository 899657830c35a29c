#include "ImageLayer.h"

#include "Images.h"
#include "Motion.h"

#include <QPainter>

namespace kestrel::tarnwell {

ImageLayer::ImageLayer(const QString &imageName, QWidget *parent) : QWidget(parent), m_imageName(imageName)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_animation.setDuration(motionTimeMs);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &place) { showAt(place.toRectF()); });
}

void ImageLayer::setFrame(const foundation::Rect &frame)
{
    m_frame = frame;
    const QRectF target = topDown(frame);
    m_animation.stop();
    if (!isVisible() || reducedMotion()) {
        showAt(target);
        return;
    }
    m_animation.setStartValue(m_place);
    m_animation.setEndValue(target);
    m_animation.start();
}

QRectF ImageLayer::topDown(const foundation::Rect &frame) const
{
    return {frame.origin.x, parentWidget()->height() - frame.origin.y - frame.size.height, frame.size.width,
            frame.size.height};
}

void ImageLayer::showAt(const QRectF &place)
{
    m_place = place;
    setGeometry(place.toAlignedRect());
    update();
}

void ImageLayer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPixmap image = namedImage(m_imageName, devicePixelRatioF());
    const QRectF place = m_place.translated(-pos());
    if (m_animation.state() == QAbstractAnimation::Running) {
        painter.drawPixmap(place, image, image.rect().toRectF());
        return;
    }
    // Scaled once: Qt starts threads, which stay for half a minute, for what it scales while it draws.
    const QSize pixels = (place.size() * devicePixelRatioF()).toSize();
    if (m_resting.size() != pixels)
        m_resting = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    m_resting.setDevicePixelRatio(devicePixelRatioF());
    drawCrisp(painter, place.topLeft(), m_resting);
}

}  // namespace kestrel::tarnwell
