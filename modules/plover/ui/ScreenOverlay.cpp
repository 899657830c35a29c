#include "ScreenOverlay.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace kestrel {

QPixmap displayPicture(quint32 window, const QRect &area)
{
    QScreen *screen = QGuiApplication::primaryScreen();
    const double ratio = screen->devicePixelRatio();
    // Qt counts from the corner of the screen, which others may stand left of.
    const QPoint corner = window == 0 ? screen->geometry().topLeft() : QPoint();
    const QPoint place = (QPointF(area.topLeft()) / ratio).toPoint() - corner;
    const QSize size = area.size() / ratio;
    return screen->grabWindow(window, place.x(), place.y(), size.width(), size.height());
}

ScreenOverlay::ScreenOverlay(const QString &title)
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    QScreen *screen = QGuiApplication::primaryScreen();
    const QRect desktop = screen->virtualGeometry();
    const double ratio = screen->devicePixelRatio();
    m_screen = displayPicture(0, {(QPointF(desktop.topLeft()) * ratio).toPoint(), desktop.size() * ratio});
    setGeometry(desktop);
}

void ScreenOverlay::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
}

void ScreenOverlay::paintDarkened(const QRect &bright, const QString &text)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), m_screen);
    painter.setClipRegion(QRegion(rect()).subtracted(bright));
    painter.fillRect(rect(), QColor(0, 0, 0, 130));
    painter.setClipping(false);
    painter.setPen(Qt::white);
    if (!bright.isEmpty())
        painter.drawRect(bright.adjusted(-1, -1, 0, 0));
    const QSize box = painter.fontMetrics().size(Qt::TextSingleLine, text) + QSize(16, 8);
    constexpr int gap = 6;
    const bool fitsAbove = bright.top() >= box.height() + gap;
    QPoint corner = bright.topLeft() + (fitsAbove ? QPoint(0, -box.height() - gap) : QPoint(gap, gap));
    if (bright.isEmpty())
        corner = rect().center() - QPoint(box.width() / 2, 0);
    painter.fillRect(QRect(corner, box), QColor(0, 0, 0, 170));
    painter.drawText(QRect(corner, box), Qt::AlignCenter, text);
}

QRect ScreenOverlay::pixelsOf(const QRect &area) const
{
    const double ratio = devicePixelRatioF();
    const QRect onDesktop = area.translated(pos());
    return {(QPointF(onDesktop.topLeft()) * ratio).toPoint(), onDesktop.size() * ratio};
}

QRect ScreenOverlay::areaOf(const QRect &pixels) const
{
    const double ratio = devicePixelRatioF();
    return QRect((QPointF(pixels.topLeft()) / ratio).toPoint(), pixels.size() / ratio).translated(-pos());
}

}  // namespace kestrel
