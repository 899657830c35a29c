#include "SystemInformation.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

/// The XDG base-directory rule: the variable counts only where it holds an absolute path.
QString baseDirectory(const char *variable, const QString &belowHome)
{
    const QString path = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(path) ? path : QDir::homePath() + u'/' + belowHome;
}

}  // namespace

std::optional<SystemVersion> GetSystemVersion2()
{
    return SystemVersion{13, 0, 0};
}

QString GetApplicationSupportDir()
{
    return baseDirectory("XDG_DATA_HOME", u".local/share"_s);
}

QString stateDirectory()
{
    return baseDirectory("XDG_STATE_HOME", u".local/state"_s);
}

QString GetAppleChipName()
{
    return {};
}

}  // namespace kestrel::tarnwell
