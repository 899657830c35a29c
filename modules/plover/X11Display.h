#pragma once

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <QList>
#include <QMargins>
#include <QRect>
#include <QString>

#include <memory>
#include <optional>

struct xcb_connection_t;

namespace kestrel {

/// Whether this is a session of Wayland, whose pictures are had only through the desktop's portal. An X display that
/// was started within one is none.
bool isWaylandSession();

/// What an X display shows, asked without a window system library of its own: monitors and windows, in pixels of the
/// whole desktop. Waits for the display's answers, a millisecond or so each. Any thread, one at a time.
class X11Display {
public:
    struct Monitor {
        QString name;  ///< "HDMI-1"
        QRect area;
        bool isPrimary = false;
    };
    struct Window {
        quint32 id = 0;
        QString title;
        QRect area;           ///< without its frame
        QMargins frame = {};  ///< around it
    };

    /// Null for the display of the environment. The reason where its picture cannot be had: there is none, or it
    /// belongs to Wayland, which shows X programs nothing of the others.
    static foundation::Result<std::shared_ptr<X11Display>, tarnwell::Sentence> open(const QString &name = {});
    ~X11Display();
    X11Display(const X11Display &) = delete;
    X11Display &operator=(const X11Display &) = delete;

    QString name() const { return m_name; }
    QRect area() const;                              ///< of the whole desktop
    bool isComposited() const;                       ///< windows have pixels of their own, also where none is seen
    QList<Monitor> monitors() const;                 ///< the primary one first; the whole desktop where none is told
    QList<Window> windows() const;                   ///< of programs, that are to be seen; the uppermost first
    std::optional<Window> window(quint32 id) const;  ///< nothing where there is none of that number to be seen

private:
    X11Display() = default;

    quint32 atom(const char *name) const;
    QByteArray property(quint32 window, const char *name) const;

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> m_connection{nullptr, nullptr};
    QString m_name;
    quint32 m_root = 0;
};

}  // namespace kestrel
