#include "PreviewPicture.h"

#include "tarnwell/TextKey.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr QSize previewSize(320, 180);
constexpr double gripSize = 12;
constexpr double usualAspect = 4.0 / 3;  ///< of a camera that has not shown a picture yet

}  // namespace

PreviewPicture::PreviewPicture()
{
    setObjectName(u"previewLabel"_s);
    setFixedSize(previewSize);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setProperty("card", true);
}

void PreviewPicture::showText(const QString &text)
{
    setText(text);
}

/// So that the camera's picture has something to stand in.
void PreviewPicture::showPlace(const QString &text)
{
    if (!m_inset)
        return showText(text);
    QPixmap place(previewSize * devicePixelRatioF());
    place.setDevicePixelRatio(devicePixelRatioF());
    place.fill(palette().color(QPalette::Mid));
    QPainter painter(&place);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    constexpr int margin = 12;
    painter.drawText(QRect({}, previewSize).adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
    painter.end();
    setPixmap(place);
    setAccessibleDescription(text);
}

void PreviewPicture::showPicture(const QPixmap &picture)
{
    if (picture.isNull())
        return setPixmap({});
    QPixmap small = picture.scaled(previewSize * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    small.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(small);
}

void PreviewPicture::setInset(const std::optional<RecordPlan::Inset> &inset)
{
    m_inset = inset;
    setFocusPolicy(inset ? Qt::StrongFocus : Qt::NoFocus);
    setAccessibleName(inset ? "Place of the camera's picture"_key.localized() : QString());
    setMouseTracking(inset.has_value());
    unsetCursor();
    update();
}

void PreviewPicture::setCamera(const QImage &picture)
{
    m_camera = picture;
    update();
}

QRectF PreviewPicture::pictureRect() const
{
    QRectF area({}, pixmap(Qt::ReturnByValue).deviceIndependentSize());
    area.moveCenter(QRectF(rect()).center());
    return area;
}

/// Kept within the picture as the recording keeps it.
QRectF PreviewPicture::insetRect() const
{
    const QRectF picture = pictureRect();
    const double aspect = m_camera.isNull() ? usualAspect : double(m_camera.width()) / m_camera.height();
    const QSizeF size(picture.width() * m_inset->width, picture.width() * m_inset->width / aspect);
    const QPointF corner(
        std::clamp(picture.width() * m_inset->x, 0.0, std::max(0.0, picture.width() - size.width())),
        std::clamp(picture.height() * m_inset->y, 0.0, std::max(0.0, picture.height() - size.height())));
    return {picture.topLeft() + corner, size};
}

void PreviewPicture::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!showsInset())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF inset = insetRect();
    if (m_camera.isNull())
        painter.fillRect(inset, QColor(0, 0, 0, 150));
    else
        painter.drawImage(inset, m_camera);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(Qt::white), 2));
    painter.drawRect(inset);
    painter.fillRect(QRectF(inset.bottomRight() - QPointF(6, 6), QSizeF(6, 6)), painter.pen().color());
}

void PreviewPicture::mousePressEvent(QMouseEvent *event)
{
    m_drag = Drag::None;
    if (!showsInset() || !insetRect().contains(event->position()))
        return;
    const QPointF toCorner = insetRect().bottomRight() - event->position();
    m_drag = std::max(toCorner.x(), toCorner.y()) < gripSize ? Drag::Size : Drag::Place;
    m_grip = event->position() - insetRect().topLeft();
}

void PreviewPicture::mouseMoveEvent(QMouseEvent *event)
{
    if (!showsInset())
        return;
    const QPointF toCorner = insetRect().bottomRight() - event->position();
    if (!(event->buttons() & Qt::LeftButton)) {
        const bool isOver = insetRect().contains(event->position());
        setCursor(!isOver
                      ? Qt::ArrowCursor
                      : (std::max(toCorner.x(), toCorner.y()) < gripSize ? Qt::SizeFDiagCursor : Qt::SizeAllCursor));
        return;
    }
    const QRectF picture = pictureRect();
    RecordPlan::Inset inset = *m_inset;
    if (m_drag == Drag::Size) {
        inset.width = (event->position().x() - insetRect().left()) / picture.width();
    } else if (m_drag == Drag::Place) {
        const QPointF corner = event->position() - m_grip - picture.topLeft();
        inset.x = corner.x() / picture.width();
        inset.y = corner.y() / picture.height();
    }
    place(inset);
}

void PreviewPicture::keyPressEvent(QKeyEvent *event)
{
    constexpr double step = 0.01;
    const struct {
        int key;
        double x, y;
    } steps[] = {{Qt::Key_Left, -step, 0}, {Qt::Key_Right, step, 0}, {Qt::Key_Up, 0, -step}, {Qt::Key_Down, 0, step}};
    for (const auto &[key, x, y] : steps) {
        if (!m_inset || event->key() != key)
            continue;
        RecordPlan::Inset inset = *m_inset;
        if (event->modifiers() & Qt::ShiftModifier) {
            inset.width += x + y;
        } else {
            inset.x += x;
            inset.y += y;
        }
        return place(inset);
    }
    QLabel::keyPressEvent(event);
}

void PreviewPicture::place(const RecordPlan::Inset &inset)
{
    m_inset = inset.bounded();
    update();
}

}  // namespace kestrel
