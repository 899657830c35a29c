#pragma once

#include "ScreenOverlay.h"

#include "modules/plover/X11Display.h"

namespace kestrel {

/// The window under the pointer is lit and chosen with a click; by keyboard, Tab goes from one to the next and Return
/// takes it.
class WindowChooser : public ScreenOverlay {
    Q_OBJECT
public:
    /// Of these, the uppermost first.
    explicit WindowChooser(const QList<X11Display::Window> &windows);

signals:
    void chosen(quint32 window);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void light(qsizetype window);
    qsizetype windowAt(QPoint point) const;
    void take();

    QList<X11Display::Window> m_windows;
    qsizetype m_lit = -1;
};

}  // namespace kestrel
