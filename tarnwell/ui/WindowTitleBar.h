#pragma once

#include "TitledWindow.h"

#include <array>

class QMenuBar;

namespace kestrel::tarnwell {

class HoverButton;

/// The bar at the top of a `TitledWindow`: its buttons, the menus, and the window's title in the middle of what is
/// left, elided. What the buttons do is the window's.
class WindowTitleBar : public QWidget {
    Q_OBJECT
public:
    explicit WindowTitleBar(QWidget *window);

    HoverButton *button(TitledWindow::WindowButton button) const { return m_buttons[size_t(button)]; }

    void setButtonVisible(TitledWindow::WindowButton button, bool visible);

    /// An image stretched across the bar, and one that stands behind the title. Null names take them away.
    void setImageNames(const QString &background, const QString &titleBackground);
    /// A view that is kept as large as the bar and lies beneath all else in it, instead of the painted background. The
    /// bar takes it over.
    void setBackgroundView(QWidget *view);
    void setMenus(const QList<QMenu *> &menus);
    void openMenus();              ///< for the keyboard: the first one
    QList<QMenu *> menus() const;  ///< the bar's own

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void layOut();
    void paintBackground(QPainter &painter);
    void paintTitle(QPainter &painter);

    std::array<HoverButton *, 3> m_buttons{};
    QString m_backgroundName;
    QString m_titleBackgroundName;
    QWidget *m_backgroundView = nullptr;
    QMenuBar *m_menuBar = nullptr;
};

}  // namespace kestrel::tarnwell
