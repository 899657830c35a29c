#include "AreaChooser.h"

#include "modules/plover/CaptureTarget.h"
#include "tarnwell/Localization.h"
#include "tarnwell/TextKey.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

/// What films are usually made in: lying, square, standing. In pixels of the screen.
constexpr QSize usualSizes[] = {{854, 480}, {1280, 720}, {1920, 1080}, {1080, 1080}, {720, 1280}, {1080, 1920}};

QString sizeText(QSize size)
{
    return u"%1 × %2"_s.arg(size.width()).arg(size.height());
}

}  // namespace

AreaChooser::AreaChooser(const QRect &former)
    : ScreenOverlay("Choose an Area"_key.localized()),
      m_bar(new QWidget(this))
{
    setObjectName(u"areaChooser"_s);
    m_area = former.isEmpty() ? QRect(rect().center() - QPoint(320, 180), QSize(640, 360)) : areaOf(former);
    makeBar();
}

void AreaChooser::makeBar()
{
    m_bar->setObjectName(u"areaBar"_s);
    m_bar->setCursor(Qt::ArrowCursor);
    auto *layout = new QHBoxLayout(m_bar);
    const auto addButton = [&](const QString &text) {
        auto *button = new QPushButton(text);
        button->setAutoDefault(true);  // Return is the focused one's
        layout->addWidget(button);
        return button;
    };
    for (const QSize size : usualSizes) {
        const QSize shown = size / devicePixelRatioF();
        if (shown.width() > width() || shown.height() > height())
            continue;
        connect(addButton(sizeText(size)), &QPushButton::clicked, this, [this, shown] {
            QRect area({}, shown);
            area.moveCenter(m_area.center());
            setArea(area);
            setFocus();
        });
    }
    auto *takeButton = addButton("Use This Area"_key.localized());
    takeButton->setProperty("primary", true);
    connect(takeButton, &QPushButton::clicked, this, &AreaChooser::take);
    connect(addButton(tarnwell::AppLocalizedString(u"Cancel"_s)), &QPushButton::clicked, this, &QWidget::close);
    setFocus();
}

/// Wholly on the screen.
void AreaChooser::setArea(const QRect &area)
{
    m_area = area;
    m_area.moveLeft(std::clamp(m_area.left(), 0, std::max(0, width() - m_area.width())));
    m_area.moveTop(std::clamp(m_area.top(), 0, std::max(0, height() - m_area.height())));
    m_area &= rect();
    update();
}

void AreaChooser::take()
{
    if (m_area.width() < 2 || m_area.height() < 2)
        return;
    emit chosen(pixelsOf(m_area));
    close();
}

void AreaChooser::resizeEvent(QResizeEvent *)
{
    constexpr int margin = 32;
    m_bar->adjustSize();
    const QRect screen = QGuiApplication::primaryScreen()->geometry().translated(-pos());
    m_bar->move(screen.center().x() - m_bar->width() / 2, screen.bottom() - m_bar->height() - margin);
}

void AreaChooser::paintEvent(QPaintEvent *)
{
    const QRect pixels = pixelsOf(m_area);
    paintDarkened(m_area, u"%1 — %2"_s.arg(sizeText(recordableArea(pixels, pixels).size()),
                                           "Draw an area, then press Return"_key.localized()));
}

void AreaChooser::mousePressEvent(QMouseEvent *event)
{
    m_start = event->position().toPoint();
    m_isMoving = m_area.contains(m_start);
    m_grip = m_start - m_area.topLeft();
    setFocus();
}

void AreaChooser::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    setArea(m_isMoving ? QRect(point - m_grip, m_area.size()) : QRect(m_start, point).normalized());
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
        const bool isSized = event->modifiers() & Qt::ShiftModifier;
        setArea(isSized ? QRect(m_area.topLeft(), m_area.size() + QSize(step.x(), step.y())) : m_area.translated(step));
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        take();
    else
        ScreenOverlay::keyPressEvent(event);
}

}  // namespace kestrel
