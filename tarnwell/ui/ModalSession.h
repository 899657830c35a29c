#pragma once

#include <QEventLoop>

#include <functional>

namespace kestrel::tarnwell {

class TitledWindow;

/// Runs a window as the application's modal window, while the event loop goes on. The window comes to the front.
/// Main thread only.
class ModalSession {
public:
    enum class Keyboard {
        WhereAtHand,  ///< only where the application has it already: it came by itself
        Take,
    };

    /// Shows the window and returns when the session is stopped or the application ends; the window is hidden then.
    /// `cancel` is what Escape, the window's close button and the desktop's ways to close a window do.
    void run(TitledWindow &window, std::function<void()> cancel, Keyboard keyboard = Keyboard::WhereAtHand);

    /// Hides the window and lets `run` return. Nothing where none runs.
    void stop();

private:
    TitledWindow *m_window = nullptr;
    QEventLoop *m_loop = nullptr;
};

}  // namespace kestrel::tarnwell
