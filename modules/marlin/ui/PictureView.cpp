#include "PictureView.h"

#include "tarnwell/ui/Palette.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kestrel {

namespace {

namespace palette = tarnwell::palette;

constexpr int captionHeight = 24;
constexpr double grip = 8;             ///< points around an edge where it can be taken
constexpr double smallestCrop = 0.05;  ///< of the picture

}  // namespace

PictureView::PictureView(QWidget *parent) : QWidget(parent)
{
    setMinimumSize(240, 160);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::setCaption(const QString &caption)
{
    m_caption = caption;
    setAccessibleName(caption);
    update();
}

void PictureView::setPicture(const QImage &picture)
{
    m_picture = picture;
    update();
}

void PictureView::setCroppable(bool croppable)
{
    m_isCroppable = croppable;
    setMouseTracking(croppable);
}

void PictureView::setCrop(const QRectF &crop)
{
    m_crop = crop;
    update();
}

QSize PictureView::sizeHint() const
{
    return {420, 260};
}

QRectF PictureView::pictureFrame() const
{
    const QRectF area = QRectF(rect()).adjusted(1, captionHeight, -1, -1);
    QRectF frame(QPointF(),
                 QSizeF(m_picture.isNull() ? QSize(16, 9) : m_picture.size()).scaled(area.size(), Qt::KeepAspectRatio));
    frame.moveCenter(area.center());
    return frame;
}

QRectF PictureView::cropFrame() const
{
    const QRectF frame = pictureFrame();
    const QRectF crop = m_crop.isEmpty() ? QRectF(0, 0, 1, 1) : m_crop;
    return {frame.x() + crop.x() * frame.width(), frame.y() + crop.y() * frame.height(), crop.width() * frame.width(),
            crop.height() * frame.height()};
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QColor(palette::quietText));
    painter.drawText(QRect(0, 0, width(), captionHeight), int(Qt::AlignCenter), m_caption);
    const QRectF frame = pictureFrame();
    painter.fillRect(frame, QColor(palette::quietSurface));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_picture.isNull())
        painter.drawImage(frame, m_picture);
    if (m_isCroppable && !m_crop.isEmpty()) {
        QColor shade(palette::text);
        shade.setAlphaF(0.6F);
        const QRegion outside = QRegion(frame.toAlignedRect()) - QRegion(cropFrame().toAlignedRect());
        for (const QRect &part : outside)
            painter.fillRect(part, shade);
        painter.setPen(QPen(QColor(palette::accent), 2));
        painter.drawRect(cropFrame());
    }
    painter.setPen(QColor(palette::line));
    painter.drawRect(frame);
}

Qt::Edges PictureView::edgesAt(const QPointF &place) const
{
    const QRectF crop = cropFrame();
    if (!crop.adjusted(-grip, -grip, grip, grip).contains(place))
        return {};
    const std::pair<Qt::Edge, double> distances[] = {{Qt::LeftEdge, place.x() - crop.left()},
                                                     {Qt::RightEdge, place.x() - crop.right()},
                                                     {Qt::TopEdge, place.y() - crop.top()},
                                                     {Qt::BottomEdge, place.y() - crop.bottom()}};
    Qt::Edges edges;
    for (const auto &[edge, distance] : distances)
        edges.setFlag(edge, std::abs(distance) <= grip);
    return edges;
}

void PictureView::showCursor(const QPointF &place)
{
    const Qt::Edges edges = edgesAt(place);
    const bool isSide = edges & (Qt::LeftEdge | Qt::RightEdge), isLevel = edges & (Qt::TopEdge | Qt::BottomEdge);
    const bool isFalling = edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    setCursor(isSide && isLevel ? (isFalling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor)
              : isSide          ? Qt::SizeHorCursor
              : isLevel         ? Qt::SizeVerCursor
                                : Qt::CrossCursor);
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    if (!m_isCroppable || event->button() != Qt::LeftButton)
        return;
    m_isDragging = true;
    m_last = event->position();
    m_edges = edgesAt(m_last);
    // Off the rectangle, or with none yet, a new one begins here.
    if (!m_edges && (m_crop.isEmpty() || !cropFrame().contains(m_last))) {
        const QRectF frame = pictureFrame();
        const double x = std::clamp((m_last.x() - frame.x()) / frame.width(), 0.0, 1 - smallestCrop);
        const double y = std::clamp((m_last.y() - frame.y()) / frame.height(), 0.0, 1 - smallestCrop);
        m_crop = {x, y, smallestCrop, smallestCrop};
        m_edges = Qt::RightEdge | Qt::BottomEdge;
    }
}

void PictureView::drag(const QPointF &place)
{
    const QRectF frame = pictureFrame();
    const double x = (place.x() - m_last.x()) / frame.width(), y = (place.y() - m_last.y()) / frame.height();
    m_last = place;
    QRectF crop = m_crop.isEmpty() ? QRectF(0, 0, 1, 1) : m_crop;
    if (!m_edges)
        crop.translate(std::clamp(x, -crop.left(), 1 - crop.right()), std::clamp(y, -crop.top(), 1 - crop.bottom()));
    if (m_edges & Qt::LeftEdge)
        crop.setLeft(std::clamp(crop.left() + x, 0.0, crop.right() - smallestCrop));
    if (m_edges & Qt::RightEdge)
        crop.setRight(std::clamp(crop.right() + x, crop.left() + smallestCrop, 1.0));
    if (m_edges & Qt::TopEdge)
        crop.setTop(std::clamp(crop.top() + y, 0.0, crop.bottom() - smallestCrop));
    if (m_edges & Qt::BottomEdge)
        crop.setBottom(std::clamp(crop.bottom() + y, crop.top() + smallestCrop, 1.0));
    setCrop(crop);
    emit cropChanged(crop);
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragging)
        drag(event->position());
    else if (m_isCroppable)
        showCursor(event->position());
}

void PictureView::mouseReleaseEvent(QMouseEvent *)
{
    m_isDragging = false;
}

}  // namespace kestrel
