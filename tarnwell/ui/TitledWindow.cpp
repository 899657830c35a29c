#include "TitledWindow.h"

#include "Frames.h"
#include "HoverButton.h"
#include "Palette.h"
#include "WindowTitleBar.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

/// One point around the window, over whatever lies at its edges: without a frame of the desktop's it would melt into
/// what is behind it.
class WindowEdge : public QWidget {
public:
    explicit WindowEdge(QWidget *window) : QWidget(window) { setAttribute(Qt::WA_TransparentForMouseEvents); }

protected:
    void resizeEvent(QResizeEvent *) override { setMask(QRegion(rect()) - rect().adjusted(1, 1, -1, -1)); }
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), QColor(palette::strongLine)); }
};

/// Tells assistive programs that it is a window; a plain widget is nothing to them.
QAccessibleInterface *windowInterface(const QString &className, QObject *object)
{
    if (className != "kestrel::tarnwell::TitledWindow"_L1)
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Window);
}

}  // namespace

TitledWindow::TitledWindow(QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint),
      m_titleBar(new WindowTitleBar(this)),
      m_contentView(new QWidget(this)),
      m_edge(new WindowEdge(this)),
      m_titleBarHeight(int(defaultTitleBarHeight))
{
    QAccessible::installFactory(windowInterface);
    const auto clicked = &HoverButton::clicked;
    connect(m_titleBar->button(WindowButton::Close), clicked, this, &TitledWindow::performClose);
    connect(m_titleBar->button(WindowButton::Minimize), clicked, this, &QWidget::showMinimized);
    connect(m_titleBar->button(WindowButton::Zoom), clicked, this, &TitledWindow::zoom);
    layOut();
}

void TitledWindow::makeInitWithImageName(const QString &backgroundName, const QString &titleBackgroundName)
{
    m_titleBar->setImageNames(backgroundName, titleBackgroundName);
}

void TitledWindow::setTitleBarHeight(double height)
{
    m_titleBarHeight = qRound(height);
    layOut();
}

foundation::Rect TitledWindow::frame() const
{
    return windowFrame(this);
}

void TitledWindow::setFrame(const foundation::Rect &frame)
{
    m_geometryBeforeZoom = {};
    setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
    if (!m_isResizable)
        setFixedSize(foundation::toTopDown(frame, 0).size());
    setWindowFrame(this, frame);
    // A window that was never shown hears of its size only when it is.
    layOut();
}

void TitledWindow::center()
{
    QRect place = geometry();
    place.moveCenter(screen()->availableGeometry().center());
    setGeometry(keptOnScreen(place, *screen()));
}

void TitledWindow::comeIntoView(const QScreen &screen)
{
    setGeometry(fittedToScreen(geometry(), screen));
    layOut();
}

void TitledWindow::setResizable(bool isResizable)
{
    m_isResizable = isResizable;
    setMinimumSize(isResizable ? QSize(0, 0) : size());
    setMaximumSize(isResizable ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : size());
}

void TitledWindow::setFillingView(QWidget *view)
{
    m_fillingView = view;
    layOut();
}

void TitledWindow::setButtonVisible(WindowButton button, bool visible)
{
    m_titleBar->setButtonVisible(button, visible);
}

void TitledWindow::setCloseAction(std::function<void()> action)
{
    m_closeAction = std::move(action);
}

void TitledWindow::setMenus(const QList<QMenu *> &menus)
{
    m_titleBar->setMenus(menus);
}

void TitledWindow::setShouldClose(std::function<bool()> shouldClose)
{
    m_shouldClose = std::move(shouldClose);
}

void TitledWindow::makeKeyAndOrderFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void TitledWindow::zoom()
{
    // Plain geometry: window managers differ in what they make of a frameless window that is maximised.
    const bool isZoomed = !m_geometryBeforeZoom.isNull();
    const QRect target = isZoomed ? m_geometryBeforeZoom : screen()->availableGeometry();
    m_geometryBeforeZoom = isZoomed ? QRect() : geometry();
    setGeometry(target);
}

void TitledWindow::performClose()
{
    if (const auto action = m_closeAction)
        action();
    else
        close();
}

void TitledWindow::closeEvent(QCloseEvent *event)
{
    // The desktop's own ways to close a window do what the close button does.
    if (event->spontaneous() && m_closeAction) {
        event->ignore();
        performClose();
        return;
    }
    if (m_shouldClose && !m_shouldClose()) {
        event->ignore();
        return;
    }
    event->accept();
    emit willClose();
}

void TitledWindow::resizeEvent(QResizeEvent *)
{
    layOut();
}

void TitledWindow::showEvent(QShowEvent *)
{
    // Left alone, the first control in the window would have the keyboard: the close button.
    if (!focusWidget() || m_titleBar->isAncestorOf(focusWidget()))
        m_contentView->setFocus();
}

void TitledWindow::layOut()
{
    m_titleBar->setGeometry(0, 0, width(), m_titleBarHeight);
    m_contentView->setGeometry(0, m_titleBarHeight, width(), height() - m_titleBarHeight);
    if (m_fillingView && m_fillingView->parentWidget() == m_contentView)
        m_fillingView->setGeometry(m_contentView->rect());
    m_edge->setGeometry(rect());
}

void TitledWindow::mousePressEvent(QMouseEvent *event)
{
    // What the controls leave unused arrives here.
    const bool isHandle = m_isMovableByWindowBackground || m_titleBar->geometry().contains(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !isHandle)
        return;
    // The desktop's own move snaps and changes screens well. Asked for later than now, it would lose what the pointer
    // has gone until then. Not every desktop has one.
    if (!windowHandle()->startSystemMove())
        m_drag = Drag{event->globalPosition().toPoint(), pos()};
}

void TitledWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_drag)
        return;
    const QPoint distance = event->globalPosition().toPoint() - m_drag->start;
    m_drag->hasBegun = m_drag->hasBegun || distance.manhattanLength() >= QApplication::startDragDistance();
    if (m_drag->hasBegun)
        move(m_drag->origin + distance);
}

void TitledWindow::mouseReleaseEvent(QMouseEvent *)
{
    m_drag.reset();
}

void TitledWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_drag.reset();
    const bool canZoom = !m_titleBar->button(WindowButton::Zoom)->isHidden();
    if (event->button() == Qt::LeftButton && canZoom && m_titleBar->geometry().contains(event->position().toPoint()))
        zoom();
}

}  // namespace kestrel::tarnwell
