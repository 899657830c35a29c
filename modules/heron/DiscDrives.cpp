#include "DiscDrives.h"

#include "foundation/Queues.h"
#include "tarnwell/Log.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString diskService = u"org.freedesktop.UDisks2"_s;
const QString diskPath = u"/org/freedesktop/UDisks2"_s;
const QString managerInterface = u"org.freedesktop.DBus.ObjectManager"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;
const QString blockInterface = u"org.freedesktop.UDisks2.Block"_s;
const QString driveInterface = u"org.freedesktop.UDisks2.Drive"_s;

const struct {
    QString path, interface, name;
} signalsOfChange[] = {{diskPath, managerInterface, u"InterfacesAdded"_s},
                       {diskPath, managerInterface, u"InterfacesRemoved"_s},
                       {QString(), propertiesInterface, u"PropertiesChanged"_s}};

constexpr std::chrono::milliseconds quietTime{300};  // a new disc changes many properties at once

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

QList<DiscDrive> drivesIn(const Objects &objects)
{
    QList<DiscDrive> drives;
    for (const Interfaces &interfaces : objects) {
        const QVariantMap block = interfaces.value(blockInterface);
        const auto path = block.value(u"Drive"_s).value<QDBusObjectPath>();
        const QVariantMap drive = objects.value(path).value(driveInterface);
        const bool isDisc = drive.value(u"Optical"_s).toBool() && drive.value(u"MediaAvailable"_s).toBool() &&
                            !drive.value(u"OpticalBlank"_s).toBool();
        // Bytes with a zero at their end.
        const QString device = QString::fromLocal8Bit(block.value(u"PreferredDevice"_s).toByteArray().constData());
        if (isDisc && device.startsWith(u'/'))
            drives.append({device, block.value(u"IdLabel"_s).toString().left(64)});
    }
    std::sort(drives.begin(), drives.end(),
              [](const DiscDrive &one, const DiscDrive &other) { return one.device < other.device; });
    return drives;
}

}  // namespace

/// What is heard of drives, over the process's own connection, which is never closed.
class DiscDrives::Bus {
public:
    Bus(const QDBusConnection &connection, DiscDrives &drives)
        : m_connection(connection),
          m_drives(drives),
          m_watcher(diskService, connection, QDBusServiceWatcher::WatchForRegistration)
    {
        for (const auto &[path, interface, name] : signalsOfChange)
            m_connection.connect(diskService, path, interface, name, &m_drives, SLOT(askLater()));
        // One that comes only now, or again, has its drives from the beginning and says nothing of them.
        connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, &m_drives, &DiscDrives::askLater);
    }
    ~Bus()
    {
        for (const auto &[path, interface, name] : signalsOfChange)
            m_connection.disconnect(diskService, path, interface, name, &m_drives, SLOT(askLater()));
    }
    Q_DISABLE_COPY(Bus)

    QDBusConnection &connection() { return m_connection; }

private:
    QDBusConnection m_connection;
    DiscDrives &m_drives;
    QDBusServiceWatcher m_watcher;
};

DiscDrives::DiscDrives(QObject *parent) : QObject(parent) {}

DiscDrives::~DiscDrives() = default;

/// Greeting the bus waits for its answer, so that is done elsewhere.
void DiscDrives::start()
{
    if (m_bus || std::exchange(m_isStarting, true))
        return;
    foundation::queue::asyncGlobal([self = QPointer(this)] {
        const QDBusConnection connection = QDBusConnection::systemBus();
        foundation::queue::asyncMain([self, connection] {
            if (!self || !std::exchange(self->m_isStarting, false))
                return;
            if (!connection.isConnected())
                return tarnwell::DNFootLog(u"Drives cannot be watched: there is no system bus"_s);
            self->m_bus = std::make_unique<Bus>(connection, *self);
            self->ask();
        });
    });
}

void DiscDrives::stop()
{
    m_bus.reset();
    m_isStarting = m_isToAsk = false;
}

void DiscDrives::askLater()
{
    if (!m_bus || std::exchange(m_isToAsk, true))
        return;
    foundation::queue::afterMain(quietTime, [self = QPointer(this)] {
        if (self && std::exchange(self->m_isToAsk, false))
            self->ask();
    });
}

void DiscDrives::ask()
{
    if (!m_bus)
        return;
    const QDBusMessage call =
        QDBusMessage::createMethodCall(diskService, diskPath, managerInterface, u"GetManagedObjects"_s);
    auto *watcher = new QDBusPendingCallWatcher(m_bus->connection().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        take(watcher->reply());
    });
}

void DiscDrives::take(const QDBusMessage &reply)
{
    // No answer, from a service that waits for a drive itself or is gone, says nothing about discs.
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != "a{oa{sa{sv}}}"_L1)
        return;
    const QList<DiscDrive> drives = drivesIn(qdbus_cast<Objects>(reply.arguments().value(0)));
    if (std::exchange(m_drives, drives) != drives)
        emit changed();
}

}  // namespace kestrel
