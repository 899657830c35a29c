#include "HardwareInformation_linux.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <QSysInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct GraphicsMaker {
    QLatin1StringView identifier;
    QLatin1StringView name;
};

constexpr GraphicsMaker graphicsMakers[] = {
    {"8086"_L1, "Intel"_L1},      {"1002"_L1, "AMD"_L1},    {"10de"_L1, "NVIDIA"_L1},
    {"1af4"_L1, "Virtio"_L1},     {"1234"_L1, "QEMU"_L1},   {"15ad"_L1, "VMware"_L1},
    {"80ee"_L1, "VirtualBox"_L1}, {"1a03"_L1, "ASPEED"_L1}, {"102b"_L1, "Matrox"_L1},
};

QByteArray smallFile(const QString &path, qint64 maximumBytes)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(maximumBytes).trimmed() : QByteArray();
}

/// "0x8086" without its prefix.
QString identifierIn(const QString &path)
{
    const QString text = QString::fromLatin1(smallFile(path, 16));
    return text.startsWith("0x"_L1) ? text.mid(2) : QString();
}

QString describeDevice(const QString &cardFolder)
{
    const QString device = cardFolder + "/device"_L1;
    const QString maker = identifierIn(device + "/vendor"_L1);
    const QString model = identifierIn(device + "/device"_L1);
    const QString driver = QFileInfo(QFileInfo(device + "/driver"_L1).symLinkTarget()).fileName();
    QStringList parts;
    for (const auto &[identifier, name] : graphicsMakers) {
        if (identifier == maker)
            parts.append(name);
    }
    if (!maker.isEmpty() && !model.isEmpty())
        parts.append(maker + u':' + model);
    if (!driver.isEmpty())
        parts.append(parts.isEmpty() ? driver : u'(' + driver + u')');
    return parts.isEmpty() ? QFileInfo(cardFolder).fileName() : parts.join(u' ');
}

}  // namespace

void readProcessorTable(const QByteArray &table, HardwareInformation &hardware)
{
    QSet<QByteArray> cores;
    QByteArray package;
    for (const QByteArray &line : table.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon < 0)
            continue;
        const QByteArray key = line.first(colon).trimmed();
        const QByteArray value = line.sliced(colon + 1).trimmed();
        if (key == "processor")
            ++hardware.threads;
        else if (key == "model name" && hardware.processor.isNull())
            hardware.processor = QString::fromUtf8(value).simplified();
        else if (key == "physical id")
            package = value;
        else if (key == "core id")
            cores.insert(package + '/' + value);  // numbered anew in each package
    }
    hardware.cores = cores.isEmpty() ? hardware.threads : int(cores.size());
}

QStringList graphicsDevicesIn(const QString &folder)
{
    // Beside the cards stand their outputs ("card0-HDMI-A-1") and render nodes.
    QMap<int, QString> devices;
    for (const QString &name : QDir(folder).entryList({u"card*"_s}, QDir::Dirs)) {
        bool isCard = false;
        const int number = QStringView(name).sliced(4).toInt(&isCard);
        if (isCard)
            devices.insert(number, describeDevice(folder + u'/' + name));
    }
    return devices.values();
}

HardwareInformation hardwareInformation()
{
    constexpr qint64 maximumTableBytes = 4 * 1024 * 1024;
    HardwareInformation hardware;
    readProcessorTable(smallFile(u"/proc/cpuinfo"_s, maximumTableBytes), hardware);
    if (hardware.processor.isEmpty())
        hardware.processor = QSysInfo::currentCpuArchitecture();
    hardware.memoryBytes = qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    hardware.graphicsDevices = graphicsDevicesIn(u"/sys/class/drm"_s);
    return hardware;
}

}  // namespace kestrel
