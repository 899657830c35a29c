#include "JPresentWindowController.h"

#include "Frames.h"
#include "Palette.h"
#include "PressOnReturn.h"
#include "SheetHostGuard.h"
#include "TitledWindow.h"

#include <QDialog>
#include <QEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace kestrel::tarnwell {

namespace {

constexpr int sheetEdge = 2;

/// The window itself. Escape and the desktop's ways to close it arrive at `reject`.
class SheetWindow : public QDialog {
public:
    explicit SheetWindow(JPresentWindowController &controller)
        : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint),
          m_controller(controller)
    {
        setContentsMargins(sheetEdge, sheetEdge, sheetEdge, sheetEdge);
    }

    void reject() override { m_controller.onCloseAction(); }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        // Return belongs to the control that has the keyboard; what it leaves goes to the default button.
        auto *button = qobject_cast<QAbstractButton *>(focusWidget());
        if (button && !button->isCheckable() && pressOnReturn(*button, *event))
            return;
        QDialog::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        // A dark line with a lighter one inside sets it off from a window of the same white below.
        QPainter painter(this);
        painter.fillRect(rect(), QColor(palette::strongLine));
        painter.fillRect(rect().adjusted(1, 1, -1, -1), QColor(palette::line));
        painter.fillRect(rect().adjusted(sheetEdge, sheetEdge, -sheetEdge, -sheetEdge), QColor(palette::surface));
    }

private:
    JPresentWindowController &m_controller;
};

const QWidget *contentOf(const QWidget *window)
{
    const auto *titledWindow = qobject_cast<const TitledWindow *>(window);
    return titledWindow ? titledWindow->contentView() : window;
}

}  // namespace

JPresentWindowController::JPresentWindowController() = default;

JPresentWindowController::~JPresentWindowController() = default;

QDialog *JPresentWindowController::window()
{
    if (!m_window) {
        m_window = std::make_unique<SheetWindow>(*this);
        m_window->installEventFilter(this);
        windowDidLoad(m_window.get());
    }
    return m_window.get();
}

bool JPresentWindowController::isPresented() const
{
    return m_window && m_window->isVisible();
}

void JPresentWindowController::presentForWindow(QWidget *presenter)
{
    QWidget *host = presenter ? presenter->window() : nullptr;
    if (isPresented() && m_presentedFor != host)
        onCloseAction();  // which stores what is to be stored
    if (!isPresented()) {
        window();
        windowWillPresent();
        attachTo(host);
        m_window->show();
    }
    m_window->raise();
    m_window->activateWindow();
}

void JPresentWindowController::onCloseAction()
{
    if (!isPresented())
        return;
    m_window->hide();
    if (QWidget *presentedFor = m_presentedFor; presentedFor && presentedFor->isVisible())
        presentedFor->activateWindow();
    detach();
}

void JPresentWindowController::attachTo(QWidget *window)
{
    m_presentedFor = window;
    fit();
    m_window->winId();  // makes the native window
    // Attached on the level of native windows only: as a child it would be deleted with a window that goes.
    m_window->windowHandle()->setTransientParent(nullptr);
    if (window) {
        window->winId();
        m_window->windowHandle()->setTransientParent(window->windowHandle());
        window->installEventFilter(this);
        m_guard = std::make_unique<SheetHostGuard>(*window, *m_window);
        connect(window, &QObject::destroyed, this, [this] { onCloseAction(); });
    }
    place();
}

/// A window whose layout can do with less is made as small as the screen asks for.
void JPresentWindowController::fit()
{
    // Not by adjustSize(), which would take two thirds of the screen for all there is.
    if (!m_wantedSize.isValid())
        m_wantedSize = m_window->testAttribute(Qt::WA_Resized) ? m_window->size() : m_window->sizeHint();
    if (!m_presentedFor || m_window->minimumSize() == m_window->maximumSize())
        return;
    // Below the title bar with its menus, where that leaves enough of it.
    const QRect free = m_presentedFor->screen()->availableGeometry();
    const int below = free.bottom() + 1 - contentOf(m_presentedFor)->mapToGlobal(QPoint()).y();
    const int room = std::clamp(below, free.height() * 2 / 3, free.height());
    m_window->resize(m_wantedSize.boundedTo({free.width(), room}));
}

void JPresentWindowController::detach()
{
    m_guard.reset();
    if (!m_presentedFor)
        return;
    m_presentedFor->removeEventFilter(this);
    m_presentedFor->disconnect(this);
    m_presentedFor = nullptr;
}

void JPresentWindowController::place()
{
    if (!m_presentedFor)
        return;
    const QWidget *content = contentOf(m_presentedFor);
    const QPoint top = content->mapToGlobal(QPoint(content->width() / 2, 0));
    const QRect wanted(top - QPoint(m_window->width() / 2, 0), m_window->size());
    m_window->move(keptOnScreen(wanted, *m_presentedFor->screen()).topLeft());
}

bool JPresentWindowController::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOwnWindow = watched == m_window.get();
    switch (event->type()) {
        case QEvent::Move:
            if (!isOwnWindow)
                place();
            break;
        case QEvent::Resize:
            place();
            break;
        case QEvent::Hide:
            // One that is only minimised keeps it.
            if (!isOwnWindow && !event->spontaneous())
                onCloseAction();
            break;
        default:
            break;
    }
    return false;
}

}  // namespace kestrel::tarnwell
