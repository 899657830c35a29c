#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace kestrel {

/// A connection of its own to one bus, made in the background by its first use and closed with the object. Nothing here
/// waits. Main thread only. Who includes this links Qt6::DBus.
class DesktopBus {
public:
    using Use = std::function<void(QDBusConnection &connection)>;
    using Answered = std::function<void(const QDBusMessage &reply)>;

    /// The owner has the object and goes with it.
    DesktopBus(QDBusConnection::BusType type, QObject *owner) : m_type(type), m_owner(owner) {}
    ~DesktopBus();
    DesktopBus(const DesktopBus &) = delete;
    DesktopBus &operator=(const DesktopBus &) = delete;

    /// Now or when it is connected; where that fails `failed`, or nothing.
    void use(Use use, std::function<void()> failed = {});
    /// `answered` gets the reply, or an error, also where there is no bus; it is not called once the owner has gone.
    void call(const QDBusMessage &message, Answered answered = {},
              std::chrono::milliseconds patience = std::chrono::seconds(25));

private:
    struct Waiting {
        Use use;
        std::function<void()> failed;
    };

    void connectInBackground();
    void connected(const QDBusConnection &connection);

    QDBusConnection::BusType m_type;
    QObject *m_owner;
    bool m_isConnecting = false;
    bool m_hasFailed = false;
    std::optional<QDBusConnection> m_connection;
    std::vector<Waiting> m_waiting;
};

}  // namespace kestrel
