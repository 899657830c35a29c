#pragma once

#include <QAction>
#include <QObject>
#include <QPointer>
#include <QWindow>

class QWidget;

namespace kestrel::tarnwell {

class WindowTitleBar;

/// Keeps the user out of the content of a window that a sheet lies over, as long as it lives: what is clicked or typed
/// there brings the sheet to the front instead. The window's title bar stays in use, but for its buttons: that is why
/// this is no modality of the toolkit's, which would take the menus as well. The menus' shortcuts work in the sheet.
class SheetHostGuard : public QObject {
    Q_OBJECT
public:
    /// Either may go first. `host` has a native window.
    SheetHostGuard(QWidget &host, QWidget &sheet);
    ~SheetHostGuard() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void shareMenus();
    void share(const QList<QAction *> &entries);
    bool isForTitleBar(const QEvent &event) const;
    void orderFront();
    void giveKeyboardBack();

    QPointer<QWidget> m_host;
    QPointer<QWidget> m_sheet;
    QPointer<QWindow> m_handle;
    QPointer<WindowTitleBar> m_titleBar;
    QList<QPointer<QAction>> m_shared;  ///< of this guard or of others
    bool m_isPressed = false;           ///< a button went down in the title bar and has not come up
};

}  // namespace kestrel::tarnwell
