#pragma once

#include <QObject>
#include <QPoint>

#include <memory>

struct xcb_connection_t;
class QSocketNotifier;

namespace kestrel {

/// Keys that work while other windows have the keyboard, taken with Ctrl and Alt by a grab of the X display's, and
/// where the pointer is. A key that another program has taken stays with it. Main thread.
class X11Keys : public QObject {
    Q_OBJECT
public:
    enum class Key { Stop, Pause, Snapshot };  ///< Ctrl+Alt+ S, P, and N

    struct Pointer {
        QPoint position = {};
        bool isPressed = false;
    };

    /// For the display of the environment; without one nothing ever comes. Has no key yet.
    explicit X11Keys(QObject *parent = nullptr);
    ~X11Keys() override;

    /// Nothing for one that it has.
    void take(Key key);
    bool isTaken(Key key) const { return m_codes[int(key)] != 0; }
    Pointer pointer() const;

signals:
    void pressed(kestrel::X11Keys::Key key);

private:
    void readEvents();

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> m_connection{nullptr, nullptr};
    std::unique_ptr<QSocketNotifier> m_notifier;
    quint32 m_root = 0;
    quint8 m_codes[3] = {};
    quint32 m_releaseTime = 0;  ///< of the display, in milliseconds
};

}  // namespace kestrel
