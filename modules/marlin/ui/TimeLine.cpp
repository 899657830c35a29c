#include "TimeLine.h"

#include "modules/common/Thumbnails.h"
#include "modules/marlin/Pieces.h"
#include "tarnwell/TextKey.h"
#include "tarnwell/ui/Palette.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kestrel {

namespace {

namespace palette = tarnwell::palette;
using tarnwell::operator""_key;

constexpr int cells = 10;
constexpr int lineHeight = 56;
constexpr int barHeight = 4;
constexpr int focusBorder = 2;
constexpr double nextMark = 0.01;  ///< seconds, so that a mark that one stands on is left

}  // namespace

TimeLine::TimeLine(Thumbnails &thumbnails, QWidget *parent) : QWidget(parent), m_thumbnails(thumbnails)
{
    setFocusPolicy(Qt::StrongFocus);
    setFixedHeight(lineHeight);
    setAccessibleName("Time line"_key.localized());
    connect(&thumbnails, &Thumbnails::made, this, [this](const QString &path) {
        if (path == m_path)
            update();
    });
}

void TimeLine::setFilm(const QString &path, double seconds)
{
    m_path = path;
    m_seconds = seconds;
    setPosition(0);
}

void TimeLine::setPieces(const QList<TranscodePlan::Piece> &pieces)
{
    m_pieces = pieces;
    update();
}

void TimeLine::setKeyPictures(const KeyPictures &keys)
{
    m_keys = keys;
    update();
}

void TimeLine::setPosition(double seconds)
{
    m_position = std::clamp(seconds, 0.0, m_seconds);
    setAccessibleDescription(timeText(m_position));
    update();
}

QSize TimeLine::sizeHint() const
{
    return {640, lineHeight};
}

double TimeLine::xOf(double seconds) const
{
    return m_seconds > 0 ? seconds / m_seconds * width() : 0;
}

void TimeLine::go(double seconds)
{
    setPosition(seconds);
    emit moved(m_position);
}

void TimeLine::click(double x)
{
    const double seconds = std::clamp(x / width() * m_seconds, 0.0, m_seconds);
    go(m_snaps ? m_keys.atOrBefore(seconds).value_or(seconds) : seconds);
}

/// Not one beside the other: of such as stand closer only some are seen.
void TimeLine::paintKeyPictures(QPainter &painter) const
{
    constexpr int closest = 5, markHeight = 10;
    double last = -closest;
    for (const double time : m_keys.times()) {
        const double x = xOf(time);
        if (x - last < closest)
            continue;
        painter.fillRect(QRectF(x - 2, 0, 4, markHeight + 1), QColor(palette::surface));
        painter.fillRect(QRectF(x - 1, 0, 2, markHeight), QColor(palette::accent));
        last = x;
    }
}

void TimeLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), QColor(palette::quietSurface));
    const double cell = double(width()) / cells;
    for (int i = 0; i < cells && m_seconds > 0; ++i) {
        const QRectF place(i * cell, 0, cell - 1, height() - barHeight);
        const QPixmap *picture = m_thumbnails.picture(m_path, m_seconds * (i + 0.5) / cells);
        if (!picture || picture->isNull())
            continue;
        QRectF part(QPointF(), place.size().scaled(QSizeF(picture->size()), Qt::KeepAspectRatio));
        part.moveCenter(QRectF(picture->rect()).center());
        painter.drawPixmap(place, *picture, part);
    }
    QRegion dropped(m_pieces.isEmpty() ? QRect() : rect());
    for (const TranscodePlan::Piece &piece : std::as_const(m_pieces)) {
        const QRectF kept(xOf(piece.start), 0, xOf(piece.end) - xOf(piece.start), height());
        dropped -= kept.toAlignedRect();
        painter.fillRect(QRectF(kept.x(), height() - barHeight, kept.width(), barHeight), QColor(palette::accent));
    }
    QColor shade(palette::text);
    shade.setAlphaF(0.7F);
    for (const QRect &part : dropped)
        painter.fillRect(part, shade);
    paintKeyPictures(painter);
    painter.fillRect(QRectF(xOf(m_position) - 1, 0, 3, height()), QColor(palette::surface));
    painter.fillRect(QRectF(xOf(m_position), 0, 1, height()), QColor(palette::error));
    if (hasFocus()) {
        painter.setPen(QPen(QColor(palette::accent), focusBorder));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void TimeLine::mousePressEvent(QMouseEvent *event)
{
    click(event->position().x());
}

void TimeLine::mouseMoveEvent(QMouseEvent *event)
{
    click(event->position().x());
}

void TimeLine::keyPressEvent(QKeyEvent *event)
{
    const double step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    const bool isToMark = event->modifiers() & Qt::ControlModifier;
    switch (event->key()) {
        case Qt::Key_Left:
            return go(isToMark ? m_keys.atOrBefore(m_position - nextMark).value_or(m_position) : m_position - step);
        case Qt::Key_Right:
            return go(isToMark ? m_keys.after(m_position + nextMark).value_or(m_position) : m_position + step);
        case Qt::Key_Home:
            return go(0);
        case Qt::Key_End:
            return go(m_seconds);
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace kestrel
