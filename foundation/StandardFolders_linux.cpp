#include "StandardFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// The XDG base-directory rule: the variable counts only where it holds an absolute path.
QString baseDirectory(const char *variable, const QString &belowHome)
{
    const QString path = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(path) ? path : QDir::homePath() + u'/' + belowHome;
}

}  // namespace

QString configurationDirectory()
{
    return baseDirectory("XDG_CONFIG_HOME", u".config"_s);
}

QString dataDirectory()
{
    return baseDirectory("XDG_DATA_HOME", u".local/share"_s);
}

QString stateDirectory()
{
    return baseDirectory("XDG_STATE_HOME", u".local/state"_s);
}

QString runtimeDirectory()
{
    // Whoever starts from outside the session does not have the variable.
    const QString usual = u"/run/user/%1"_s.arg(::geteuid());
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR") && QFileInfo(usual).isDir())
        return usual;
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

bool makePrivateFolder(const QString &path)
{
    constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (QFileInfo(path).isDir())
        return true;
    const QString parent = QFileInfo(path).path();
    if (parent == path || !makePrivateFolder(parent))
        return false;
    if (!QDir().mkdir(path, ownerOnly))
        return QFileInfo(path).isDir();  // another process was first
    // The mask may have taken even the owner's permissions away.
    QFile::setPermissions(path, ownerOnly);
    return true;
}

}  // namespace kestrel::foundation
