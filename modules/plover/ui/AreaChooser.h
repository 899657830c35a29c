#pragma once

#include "ScreenOverlay.h"

namespace kestrel {

/// An area is drawn with the mouse; pressed within it, it is moved. Arrow keys move it
/// by single pixels and, with Shift, change its size; buttons give it a usual one. Return takes it.
class AreaChooser : public ScreenOverlay {
    Q_OBJECT
public:
    /// Begins with the former area, in pixels of the desktop, where there is one.
    explicit AreaChooser(const QRect &former);

signals:
    void chosen(const QRect &area);  ///< in pixels of the desktop

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeBar();
    void setArea(const QRect &area);
    void take();

    QWidget *m_bar;
    QPoint m_start;
    QPoint m_grip;  ///< within the area, while that is moved
    bool m_isMoving = false;
    QRect m_area;
};

}  // namespace kestrel
