#pragma once

#include "foundation/Geometry.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

class QMenu;
class QScreen;

namespace kestrel::tarnwell {

class WindowTitleBar;

/// A top-level window with a title bar of its own: close, minimise and zoom button at the left, the menus where the
/// platform has no global menu bar, the title in the middle; dragging it moves the window. `contentView()` fills the
/// rest. Frames are in points, bottom-up, and take in the title bar. Only `setFrame`, the zoom button and, while it is
/// resizable, the desktop size it.
class TitledWindow : public QWidget {
    Q_OBJECT
public:
    static constexpr double defaultTitleBarHeight = 24;
    enum class WindowButton { Close, Minimize, Zoom };

    explicit TitledWindow(QWidget *parent = nullptr);

    /// Dresses the title bar: a background image that is stretched across it, and one that stands behind the title.
    void makeInitWithImageName(const QString &backgroundName, const QString &titleBackgroundName);
    /// The frame stays; the content view takes what is left.
    void setTitleBarHeight(double height);
    WindowTitleBar *titleBarView() const { return m_titleBar; }
    QWidget *contentView() const { return m_contentView; }

    foundation::Rect frame() const;
    void setFrame(const foundation::Rect &frame);
    void center();  ///< on the screen that it is on
    /// Moves it, and makes it smaller, as little as it takes to lie on the free area of the screen.
    void comeIntoView(const QScreen &screen);
    /// Whether the desktop may tile, maximise and size it; it may unless this is taken away.
    void setResizable(bool isResizable);
    /// A view in the content view that is kept as large as that, as long as it is in there.
    void setFillingView(QWidget *view);

    void setButtonVisible(WindowButton button, bool visible);
    /// What the close button does instead of closing the window.
    void setCloseAction(std::function<void()> action);
    /// Shows menus like these in the title bar, with entries of this window's own. F10 opens them.
    void setMenus(const QList<QMenu *> &menus);
    /// Asked before the window closes by any way; closing is refused where it answers false.
    void setShouldClose(std::function<bool()> shouldClose);
    /// Whether dragging the background of the content moves the window as well.
    void setMovableByWindowBackground(bool isMovable) { m_isMovableByWindowBackground = isMovable; }

    /// Shows it, in front and with the keyboard, on the space that the user is on as far as the window manager goes
    /// along.
    void makeKeyAndOrderFront();
    /// What the close button does: its action, or closing the window.
    void performClose();
    /// To the whole free area of its screen and back.
    void zoom();

signals:
    void willClose();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    struct Drag {
        QPoint start;   ///< where the button went down, on the screen
        QPoint origin;  ///< where the window was then
        bool hasBegun = false;
    };

    void layOut();

    WindowTitleBar *m_titleBar;
    QWidget *m_contentView;
    QWidget *m_edge;
    QPointer<QWidget> m_fillingView;
    int m_titleBarHeight;
    bool m_isResizable = true;
    bool m_isMovableByWindowBackground = false;
    std::optional<Drag> m_drag;
    QRect m_geometryBeforeZoom;  ///< null while it is not zoomed
    std::function<void()> m_closeAction;
    std::function<bool()> m_shouldClose;
};

}  // namespace kestrel::tarnwell
