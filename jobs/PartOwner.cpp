#include "PartOwner.h"

#include "foundation/ProcessStart.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSysInfo>

#include <sys/types.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

quint32 shortHash(const QByteArray &text)
{
    constexpr int hexDigits = 8;
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().first(hexDigits).toUInt(nullptr, 16);
}

PartOwner present()
{
    QFile bootFile(u"/proc/sys/kernel/random/boot_id"_s);
    const QByteArray boot = bootFile.open(QIODevice::ReadOnly) ? bootFile.readLine(100) : QByteArray();
    // A container has processes of its own: for those of another one it is a machine of its own.
    char space[100] = {};
    const ssize_t spaceLength = readlink("/proc/self/ns/pid", space, sizeof space);
    QByteArray machine = QSysInfo::machineUniqueId();
    if (machine.isEmpty())
        machine = QSysInfo::machineHostName().toUtf8();
    machine += QByteArray(space, spaceLength > 0 ? spaceLength : 0);
    return {.process = getpid(),
            .start = foundation::processStart(getpid()),
            .boot = shortHash(boot),
            .machine = shortHash(machine)};
}

}  // namespace

const PartOwner &PartOwner::self()
{
    static const PartOwner owner = present();
    return owner;
}

QString PartOwner::tag() const
{
    return u"%1-%2-%3-%4"_s.arg(process).arg(start).arg(boot, 8, 16, QChar(u'0')).arg(machine, 8, 16, QChar(u'0'));
}

std::optional<PartOwner> PartOwner::fromTag(const QString &tag)
{
    const QStringList fields = tag.split(u'-');
    if (fields.size() != 4)
        return {};
    const PartOwner owner{.process = fields[0].toLongLong(),
                          .start = fields[1].toULongLong(),
                          .boot = fields[2].toUInt(nullptr, 16),
                          .machine = fields[3].toUInt(nullptr, 16)};
    return owner.process > 0 && owner.start > 0 && owner.tag() == tag ? std::optional(owner) : std::nullopt;
}

bool PartOwner::hasEnded() const
{
    if (machine != self().machine)
        return false;
    if (boot != self().boot)
        return true;
    if (const quint64 presentStart = foundation::processStart(process); presentStart != 0)
        return presentStart != start;
    return kill(pid_t(process), 0) != 0 && errno == ESRCH;  // and not that it could not be read
}

}  // namespace kestrel
