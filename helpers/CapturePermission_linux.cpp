#include "CapturePermission.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QStringList>
#include <QThread>

#include <cstring>
#include <type_traits>

using namespace Qt::StringLiterals;

// The desktop asks for access to the microphone by itself. The screen is anybody's under X11; under Wayland it is asked
// for through the desktop's portal, with each recording: here it is told whether there is a portal to ask.

namespace {

bool isAskedByPortal(const char *mediaType)
{
    return mediaType && std::strcmp(mediaType, captureMediaTypeVideo) == 0 &&
           (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland");
}

/// On the bus, or started by the first call. Waits for the bus.
bool hasPortal()
{
    const QString connectionName = u"kestrel-capture-permission"_s;
    const QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
    bool isThere = false;
    for (const QString &question : {u"ListNames"_s, u"ListActivatableNames"_s}) {
        constexpr int patience = 3000;
        const QString service = u"org.freedesktop.DBus"_s;
        const QDBusReply<QStringList> names =
            bus.call(QDBusMessage::createMethodCall(service, u"/org/freedesktop/DBus"_s, service, question),
                     QDBus::Block, patience);
        isThere = isThere || names.value().contains(u"org.freedesktop.portal.Desktop"_s);
    }
    QDBusConnection::disconnectFromBus(connectionName);
    return isThere;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int GetAuthorizationStatus(const char *mediaType, const char **)
{
    constexpr int notDetermined = 0, authorized = 3;
    return isAskedByPortal(mediaType) ? notDetermined : authorized;
}

extern "C" __attribute__((visibility("default"))) void AuthorDevice(const char *mediaType,
                                                                    void (*completion)(void *, int), void *context)
{
    if (!isAskedByPortal(mediaType))
        return completion(context, 1);
    QThread *thread = QThread::create([completion, context] { completion(context, hasPortal() ? 1 : 0); });
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

static_assert(std::is_same_v<decltype(GetAuthorizationStatus), GetAuthorizationStatusFunction>);
static_assert(std::is_same_v<decltype(AuthorDevice), AuthorDeviceFunction>);
