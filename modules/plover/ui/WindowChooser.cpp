#include "WindowChooser.h"

#include "tarnwell/TextKey.h"

#include <QKeyEvent>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

WindowChooser::WindowChooser(const QList<X11Display::Window> &windows)
    : ScreenOverlay("Choose a Window"_key.localized()),
      m_windows(windows)
{
    setObjectName(u"windowChooser"_s);
    setMouseTracking(true);
}

void WindowChooser::light(qsizetype window)
{
    m_lit = window;
    update();
}

qsizetype WindowChooser::windowAt(QPoint point) const
{
    for (qsizetype index = 0; index < m_windows.size(); ++index) {
        if (areaOf(m_windows[index].area.marginsAdded(m_windows[index].frame)).contains(point))
            return index;
    }
    return -1;
}

void WindowChooser::take()
{
    if (m_lit >= 0)
        emit chosen(m_windows[m_lit].id);
    close();
}

/// Tab would go to another control, of which there is none.
bool WindowChooser::event(QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Tab)
        return ScreenOverlay::event(event);
    if (!m_windows.isEmpty())
        light((m_lit + 1) % m_windows.size());
    return true;
}

void WindowChooser::paintEvent(QPaintEvent *)
{
    paintDarkened(m_lit < 0 ? QRect() : areaOf(m_windows[m_lit].area),
                  m_lit < 0 ? "Click the window that is to be recorded"_key.localized() : m_windows[m_lit].title);
}

void WindowChooser::mouseMoveEvent(QMouseEvent *event)
{
    light(windowAt(event->position().toPoint()));
}

void WindowChooser::mouseReleaseEvent(QMouseEvent *event)
{
    light(windowAt(event->position().toPoint()));
    take();
}

void WindowChooser::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        take();
    else
        ScreenOverlay::keyPressEvent(event);
}

}  // namespace kestrel
