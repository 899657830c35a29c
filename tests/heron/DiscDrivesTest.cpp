#include "modules/heron/DiscDrives.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

/// UDisks2 as far as it tells of drives, on a system bus of its own.
class DiskService final : public QDBusVirtualObject {
public:
    DiskService()
    {
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        QFile configuration(m_folder.filePath(u"bus.conf"_s));
        if (configuration.open(QIODevice::WriteOnly)) {
            configuration.write(
                "<busconfig><type>session</type><listen>unix:tmpdir=" + m_folder.path().toUtf8() +
                "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                "<allow own=\"*\"/></policy></busconfig>");
        }
        configuration.close();
        m_daemon.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s,
                                          u"--config-file="_s + configuration.fileName()});
        m_daemon.waitForReadyRead(20000);
        const QByteArray address = m_daemon.readLine().trimmed();
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        m_connection = QDBusConnection::connectToBus(QString::fromUtf8(address), u"disks"_s);
        m_connection.registerVirtualObject(u"/org/freedesktop/UDisks2"_s, this);
        m_connection.registerService(u"org.freedesktop.UDisks2"_s);
    }
    ~DiskService() override
    {
        QDBusConnection::disconnectFromBus(u"disks"_s);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        ++m_questions;
        return connection.send(message.createReply(QVariant::fromValue(m_objects)));
    }

    void setDrive(const QString &name, bool hasMedia, const QString &label)
    {
        const QDBusObjectPath drive(u"/org/freedesktop/UDisks2/drives/"_s + name);
        const QDBusObjectPath block(u"/org/freedesktop/UDisks2/block_devices/"_s + name);
        m_objects[drive] = {{u"org.freedesktop.UDisks2.Drive"_s,
                             {{u"Optical"_s, true}, {u"MediaAvailable"_s, hasMedia}, {u"OpticalBlank"_s, false}}}};
        m_objects[block] = {{u"org.freedesktop.UDisks2.Block"_s,
                             {{u"Drive"_s, QVariant::fromValue(drive)},
                              {u"PreferredDevice"_s, QByteArray("/dev/" + name.toLatin1() + '\0')},
                              {u"IdLabel"_s, label}}}};
        QDBusMessage change =
            QDBusMessage::createSignal(drive.path(), u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        change << u"org.freedesktop.UDisks2.Drive"_s << QVariantMap() << QStringList();
        m_connection.send(change);
    }
    int questions() const { return m_questions; }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QDBusConnection m_connection{QString()};
    Objects m_objects;
    int m_questions = 0;
};

}  // namespace

TEST(DiscDrivesTest, FollowsDiscsOnceItIsStarted)
{
    DiskService disks;
    disks.setDrive(u"sr1"_s, false, {});
    disks.setDrive(u"sr0"_s, true, u"HOLIDAY"_s);
    DiscDrives drives;
    QTest::qWait(0);
    EXPECT_EQ(disks.questions(), 0) << "nothing is asked before the module is open";
    drives.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !drives.drives().isEmpty(); }, 20000));
    EXPECT_EQ(drives.drives(), (QList<DiscDrive>{{u"/dev/sr0"_s, u"HOLIDAY"_s}}));

    disks.setDrive(u"sr1"_s, true, u"SECOND"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return drives.drives().size() == 2; }, 20000));
    disks.setDrive(u"sr0"_s, false, {});
    ASSERT_TRUE(QTest::qWaitFor([&] { return drives.drives().size() == 1; }, 20000));
    EXPECT_EQ(drives.drives().first().label, u"SECOND");
}

}  // namespace kestrel
