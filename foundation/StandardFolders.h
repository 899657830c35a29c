#pragma once

#include <QString>

/// The folders below which applications keep what belongs to the user. They need not exist.
namespace kestrel::foundation {

QString configurationDirectory();  ///< settings: `$XDG_CONFIG_HOME`, or `~/.config`
QString dataDirectory();           ///< data: `$XDG_DATA_HOME`, or `~/.local/share`
QString stateDirectory();          ///< logs and other state: `$XDG_STATE_HOME`, or `~/.local/state`
QString runtimeDirectory();        ///< for the time of a login: `$XDG_RUNTIME_DIR`, or the usual place for it

/// Makes the folder and those above it where they are missing, each for its owner alone, whatever the process's mask of
/// permissions says. One that is there stays as it is. False where there is no folder then.
bool makePrivateFolder(const QString &path);

}  // namespace kestrel::foundation
