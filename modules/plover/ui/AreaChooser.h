#pragma once

#include <QWidget>

namespace kestrel {

/// The screen, darkened, on which an area is drawn with the mouse; arrow keys move it by single pixels and, with Shift,
/// change its size. Return takes it, Escape does not. Goes by itself.
class AreaChooser : public QWidget {
    Q_OBJECT
public:
    AreaChooser();

signals:
    void chosen(const QRect &area);  ///< in pixels of the desktop

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPixmap m_screen;
    QPoint m_start;
    QRect m_area;
};

}  // namespace kestrel
