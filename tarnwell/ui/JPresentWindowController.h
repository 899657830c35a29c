#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QPointer>
#include <QSize>

#include <memory>

class QDialog;
class QWidget;

namespace kestrel::tarnwell {

class SheetHostGuard;

/// Presents one window attached over another like a sheet: centred at its top, moving and closing with it. What is in
/// the other's content is out of reach meanwhile; its title bar with the menus is not, and their shortcuts work here
/// too. A controller keeps its window from the first presentation to the end of the program; `windowDidLoad` fills it
/// once, when it is made. Its window's own edge is painted inside the window: the contents margins keep the layout off
/// it. A subclass offers a static `loadDefaultWindowController()` that returns its one shared controller
/// (`sharedController`).
class JPresentWindowController : public QObject {
    Q_OBJECT
public:
    ~JPresentWindowController() override;

    /// The window; made on first use.
    QDialog *window();
    bool isPresented() const;

    /// Presented for another window already, it comes over to this one. `presenter` may go at any time.
    void presentForWindow(QWidget *presenter);

    /// Closes the window; Escape does the same. A subclass stores what is to be stored and then calls this one.
    virtual void onCloseAction();

protected:
    JPresentWindowController();

    /// Fills the new window with its controls.
    virtual void windowDidLoad(QDialog *window) = 0;
    /// The window is about to be shown, the first time or again.
    virtual void windowWillPresent() {}

    /// The one controller of its class, made on first use; it goes with the application object.
    template <class Controller>
    static Controller &sharedController();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void attachTo(QWidget *window);
    void fit();
    void detach();
    void place();

    std::unique_ptr<QDialog> m_window;
    QPointer<QWidget> m_presentedFor;  ///< null while it is not presented
    std::unique_ptr<SheetHostGuard> m_guard;
    QSize m_wantedSize;  ///< of a window that has all the room it asks for
};

template <class Controller>
Controller &JPresentWindowController::sharedController()
{
    // Windows cannot outlive the application object, which statics do.
    static std::unique_ptr<Controller> controller;
    if (!controller) {
        controller = std::make_unique<Controller>();
        qAddPostRoutine([] { controller.reset(); });
    }
    return *controller;
}

}  // namespace kestrel::tarnwell
