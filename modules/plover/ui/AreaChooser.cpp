#include "AreaChooser.h"

#include "tarnwell/TextKey.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

AreaChooser::AreaChooser() : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"areaChooser"_s);
    setWindowTitle("Choose an Area"_key.localized());
    setCursor(Qt::CrossCursor);
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    m_screen =
        QGuiApplication::primaryScreen()->grabWindow(0, desktop.x(), desktop.y(), desktop.width(), desktop.height());
    m_area = {desktop.center() - QPoint(320, 180), QSize(640, 360)};
    setGeometry(desktop);
}

void AreaChooser::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), m_screen);
    painter.setClipRegion(QRegion(rect()).subtracted(m_area));
    painter.fillRect(rect(), QColor(0, 0, 0, 130));
    painter.setClipping(false);
    painter.setPen(Qt::white);
    painter.drawRect(m_area.adjusted(-1, -1, 0, 0));
    const QString size = u"%1 × %2 — %3"_s.arg(m_area.width())
                             .arg(m_area.height())
                             .arg("Draw an area, then press Return"_key.localized());
    painter.drawText(m_area.bottomLeft() + QPoint(0, 20), size);
}

void AreaChooser::mousePressEvent(QMouseEvent *event)
{
    m_start = event->position().toPoint();
}

void AreaChooser::mouseMoveEvent(QMouseEvent *event)
{
    m_area = QRect(m_start, event->position().toPoint()).normalized();
    update();
}

void AreaChooser::keyPressEvent(QKeyEvent *event)
{
    const struct {
        int key;
        QPoint step;
    } steps[] = {{Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    for (const auto &[key, step] : steps) {
        if (event->key() != key)
            continue;
        if (event->modifiers() & Qt::ShiftModifier)
            m_area.setSize(m_area.size() + QSize(step.x(), step.y()));
        else
            m_area.translate(step);
        update();
    }
    const bool isTaken = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isTaken && m_area.width() >= 2 && m_area.height() >= 2) {
        const double ratio = devicePixelRatioF();
        const QRect area = m_area.translated(pos());
        emit chosen({(QPointF(area.topLeft()) * ratio).toPoint(), area.size() * ratio});
    }
    if (isTaken || event->key() == Qt::Key_Escape)
        close();
}

}  // namespace kestrel
