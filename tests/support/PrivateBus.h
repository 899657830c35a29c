#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace kestrel::test {

/// A bus of our own, system's and session's in one, for the process: the addresses are read once.
class PrivateBus {
public:
    static PrivateBus &instance()
    {
        static PrivateBus bus;
        return bus;
    }
    QString address() const { return m_address; }
    pid_t processId() const { return pid_t(m_daemon.processId()); }

private:
    PrivateBus()
    {
        QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
        if (configuration.open(QIODevice::WriteOnly)) {
            configuration.write("<busconfig><type>session</type><listen>unix:tmpdir=" + m_folder.path().toUtf8() +
                                "</listen><policy context=\"default\"><allow send_destination=\"*\" "
                                "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                                "<allow own=\"*\"/></policy></busconfig>");
            configuration.close();
        }
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + configuration.fileName()});
        while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead(5000)) {
        }
        m_address = QString::fromLocal8Bit(m_daemon.readLine().trimmed());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_address.toLocal8Bit());
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toLocal8Bit());
    }
    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished(1000);
    }

    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};

}  // namespace kestrel::test
