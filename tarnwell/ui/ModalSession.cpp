#include "ModalSession.h"

#include "TitledWindow.h"

#include <QApplication>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

namespace kestrel::tarnwell {

namespace {

constexpr std::chrono::milliseconds newWindowTime{300};  ///< after which a window manager has placed a window

/// The window that the session blocks first of all; null where none is on screen.
QWindow *windowBeneath(const TitledWindow &window)
{
    if (const QWidget *active = QApplication::activeWindow(); active && active != &window)
        return active->windowHandle();
    for (const QWidget *other : QApplication::topLevelWidgets())
        if (other != &window && other->isVisible() && other->windowType() == Qt::Window)
            return other->windowHandle();
    return nullptr;
}

void orderFront(TitledWindow &window, ModalSession::Keyboard keyboard)
{
    const bool hasKeyboard =
        keyboard == ModalSession::Keyboard::Take || QGuiApplication::applicationState() == Qt::ApplicationActive;
    window.setAttribute(Qt::WA_ShowWithoutActivating, !hasKeyboard);
    window.winId();  // makes the native window
    QWindow *handle = window.windowHandle();
    // A window that it blocks must not come to lie over it.
    handle->setTransientParent(windowBeneath(window));
    if (hasKeyboard) {
        window.makeKeyAndOrderFront();
        return;
    }
    // Some window managers give the keyboard to every new window that takes it, unless the user is typing just then.
    handle->setFlag(Qt::WindowDoesNotAcceptFocus);
    window.show();
    window.raise();
    QApplication::alert(&window);
    QTimer::singleShot(newWindowTime, handle, [handle] { handle->setFlag(Qt::WindowDoesNotAcceptFocus, false); });
}

}  // namespace

void ModalSession::run(TitledWindow &window, std::function<void()> cancel, Keyboard keyboard)
{
    m_window = &window;
    window.setResizable(false);
    // Only a dialog is kept over the window beneath it.
    window.setWindowFlags((window.windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
    window.setWindowModality(Qt::ApplicationModal);
    const QShortcut escape(QKeySequence(Qt::Key_Escape), &window, cancel);
    window.setCloseAction(std::move(cancel));
    QEventLoop loop;
    m_loop = &loop;
    // Closed by whatever closes all windows, it has no modal session to be in.
    QObject::connect(&window, &TitledWindow::willClose, &loop, &QEventLoop::quit);
    orderFront(window, keyboard);
    loop.exec();
    m_loop = nullptr;
    window.hide();
    m_window = nullptr;
}

void ModalSession::stop()
{
    if (!m_loop)
        return;
    m_window->hide();
    m_loop->quit();
}

}  // namespace kestrel::tarnwell
