#pragma once

#include <QAbstractButton>

namespace kestrel::tarnwell {

/// A button without an outline: an icon, a text or both beside each other, which reports the pointer's coming and
/// going. Keyboard focus shows as a ring; Return presses it then. Icon-only buttons need an accessible name.
class HoverButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit HoverButton(QWidget *parent = nullptr);

    /// The bundle's image of that name at its own size, and the one that takes its place while the pointer is over it.
    void setImageNamed(const QString &name, const QString &hoverName = {});

    bool isHovered() const { return m_isHovered; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// The pointer came (`entered`) or went; a button that is hidden under the pointer is left by it.
    virtual void onMouseEnterExit(bool entered);

    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setHovered(bool isHovered);

    QIcon m_hoverIcon;
    bool m_isHovered = false;
};

}  // namespace kestrel::tarnwell
