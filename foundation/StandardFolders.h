#pragma once

#include <QString>

/// The folders below which applications keep what belongs to the user. They need not exist.
namespace kestrel::foundation {

QString configurationDirectory();  ///< settings: `$XDG_CONFIG_HOME`, or `~/.config`
QString dataDirectory();           ///< data: `$XDG_DATA_HOME`, or `~/.local/share`
QString stateDirectory();          ///< logs and other state: `$XDG_STATE_HOME`, or `~/.local/state`

}  // namespace kestrel::foundation
