#include "DesktopServices.h"

#include "DesktopBus.h"
#include "tarnwell/Localization.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>

#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString notificationPath = u"/org/freedesktop/Notifications"_s;
const QString notificationInterface = u"org.freedesktop.Notifications"_s;

QDBusMessage loginCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                                       u"org.freedesktop.login1.Manager"_s, method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage screenCall(const QString &method, const QVariantList &arguments)
{
    const QString interface = u"org.freedesktop.ScreenSaver"_s;
    QDBusMessage call = QDBusMessage::createMethodCall(interface, u"/org/freedesktop/ScreenSaver"_s, interface, method);
    call.setArguments(arguments);
    return call;
}

}  // namespace

/// Holds as long as its descriptor is open; one that is no longer wanted when the answer comes closes it at once.
struct DesktopServices::Inhibition {
    QDBusUnixFileDescriptor descriptor;
};

/// Holds until it is taken back by the number that the desktop gave, or the connection closes.
struct DesktopServices::ScreenInhibition {
    std::optional<uint> number;
};

DesktopServices::DesktopServices(const QString &desktopName, QObject *parent)
    : QObject(parent),
      m_desktopName(desktopName),
      m_system(std::make_unique<DesktopBus>(QDBusConnection::SystemBus, this)),
      m_session(std::make_unique<DesktopBus>(QDBusConnection::SessionBus, this))
{
}

DesktopServices::~DesktopServices() = default;

void DesktopServices::setAwake(bool awake, const QString &why)
{
    if (awake == bool(m_inhibition))
        return;
    if (!awake) {
        m_inhibition.reset();
        return;
    }
    m_inhibition = std::make_shared<Inhibition>();
    m_system->call(loginCall(u"Inhibit"_s, {u"sleep:idle"_s, QCoreApplication::applicationName(), why, u"block"_s}),
                   [inhibition = std::weak_ptr(m_inhibition)](const QDBusMessage &message) {
                       const QDBusPendingReply<QDBusUnixFileDescriptor> reply(message);
                       if (const auto wanted = inhibition.lock(); wanted && reply.isValid())
                           wanted->descriptor = reply.value();
                   });
}

void DesktopServices::setScreenOn(bool on, const QString &why)
{
    if (on == bool(m_screenInhibition))
        return;
    const auto takeBack = [this](uint number) { m_session->call(screenCall(u"UnInhibit"_s, {number})); };
    if (!on) {
        if (const auto former = std::exchange(m_screenInhibition, nullptr); former->number)
            takeBack(*former->number);
        return;
    }
    m_screenInhibition = std::make_shared<ScreenInhibition>();
    m_session->call(screenCall(u"Inhibit"_s, {QCoreApplication::applicationName(), why}),
                    [inhibition = std::weak_ptr(m_screenInhibition), takeBack](const QDBusMessage &message) {
                        const QDBusPendingReply<uint> reply(message);
                        if (!reply.isValid())
                            return;
                        if (const auto wanted = inhibition.lock())
                            wanted->number = reply.value();
                        else
                            takeBack(reply.value());
                    });
}

void DesktopServices::showProgress(std::optional<double> fraction)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(u"/com/tarnwell/kestrel"_s, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    signal.setArguments({u"application://%1.desktop"_s.arg(m_desktopName),
                         QVariantMap{{u"progress"_s, fraction.value_or(0)}, {u"progress-visible"_s, bool(fraction)}}});
    m_session->use([signal](QDBusConnection &connection) { connection.send(signal); });
}

void DesktopServices::notify(const QString &tag, const QString &summary, const QString &body)
{
    listenToNotifications();
    const QString show = tarnwell::AppLocalizedString(u"Show"_s);
    QDBusMessage call =
        QDBusMessage::createMethodCall(notificationInterface, notificationPath, notificationInterface, u"Notify"_s);
    call.setArguments({QCoreApplication::applicationName(), 0U, m_desktopName, summary, body,
                       QStringList{u"default"_s, show, u"show"_s, show},
                       QVariantMap{{u"desktop-entry"_s, m_desktopName}}, -1});
    m_session->call(call, [this, tag](const QDBusMessage &message) {
        if (const QDBusPendingReply<uint> reply(message); reply.isValid())
            m_notifications.insert(reply.value(), tag);
    });
}

void DesktopServices::listenToNotifications()
{
    if (std::exchange(m_listensToNotifications, true))
        return;
    // Whoever the service is: its name would have to be looked up, which waits.
    m_session->use([this](QDBusConnection &connection) {
        connection.connect({}, notificationPath, notificationInterface, u"ActionInvoked"_s, this,
                           SLOT(notificationActionInvoked(uint, QString)));
        connection.connect({}, notificationPath, notificationInterface, u"NotificationClosed"_s, this,
                           SLOT(notificationClosed(uint)));
    });
}

void DesktopServices::notificationActionInvoked(uint id, const QString &action)
{
    const auto notification = m_notifications.constFind(id);
    if (notification != m_notifications.cend() && (action == "show"_L1 || action == "default"_L1))
        emit notificationChosen(*notification);
}

void DesktopServices::notificationClosed(uint id)
{
    m_notifications.remove(id);
}

void DesktopServices::askCanPowerOff(std::function<void(bool)> answer)
{
    m_system->call(loginCall(u"CanPowerOff"_s, {}), [answer = std::move(answer)](const QDBusMessage &message) {
        const QDBusPendingReply<QString> reply(message);
        answer(reply.isValid() && reply.value() == "yes"_L1);
    });
}

void DesktopServices::powerOff(std::function<void()> failed)
{
    m_system->call(loginCall(u"PowerOff"_s, {false}), [failed = std::move(failed)](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ErrorMessage)
            failed();
    });
}

}  // namespace kestrel
