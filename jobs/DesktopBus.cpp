#include "DesktopBus.h"

#include "foundation/Queues.h"
#include "tarnwell/Log.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QPointer>

#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

DesktopBus::~DesktopBus()
{
    if (m_connection)
        QDBusConnection::disconnectFromBus(m_connection->name());
}

void DesktopBus::use(Use use, std::function<void()> failed)
{
    if (m_connection)
        return use(*m_connection);
    if (m_hasFailed) {
        if (failed)
            failed();
        return;
    }
    m_waiting.push_back({std::move(use), std::move(failed)});
    if (!std::exchange(m_isConnecting, true))
        connectInBackground();
}

void DesktopBus::call(const QDBusMessage &message, Answered answered, std::chrono::milliseconds patience)
{
    const auto send = [message, answered, patience, owner = m_owner](QDBusConnection &connection) {
        auto *watcher = new QDBusPendingCallWatcher(connection.asyncCall(message, int(patience.count())), owner);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner, [watcher, message, answered] {
            watcher->deleteLater();
            const QDBusMessage reply = watcher->reply();
            if (reply.type() == QDBusMessage::ErrorMessage)
                tarnwell::DNFootLog(u"%1 of the desktop: %2"_s, message.member(), reply.errorMessage());
            if (answered)
                answered(reply);
        });
    };
    const auto fail = [message, answered] {
        if (answered)
            answered(message.createErrorReply(QDBusError::Disconnected, u"There is no bus"_s));
    };
    use(send, fail);
}

/// Greeting a bus waits for its answer.
void DesktopBus::connectInBackground()
{
    static int connections = 0;
    const QString name = u"kestrel-desktop-%1"_s.arg(++connections);
    foundation::queue::asyncGlobal([this, owner = QPointer(m_owner), type = m_type, name] {
        const QDBusConnection connection = QDBusConnection::connectToBus(type, name);
        foundation::queue::asyncMain([this, owner, connection] {
            if (owner)
                connected(connection);
            else
                QDBusConnection::disconnectFromBus(connection.name());
        });
    });
}

void DesktopBus::connected(const QDBusConnection &connection)
{
    const QPointer<QObject> owner(m_owner);
    const std::vector<Waiting> waiting = std::exchange(m_waiting, {});
    if (connection.isConnected())
        m_connection = connection;
    m_hasFailed = !m_connection;
    for (const auto &[use, failed] : waiting) {
        if (!owner)
            return;
        if (m_connection)
            use(*m_connection);
        else if (failed)
            failed();
    }
}

}  // namespace kestrel
