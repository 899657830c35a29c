#pragma once

#include <QString>

namespace kestrel {

/// `name` as every file system takes it and a file manager shows it: characters that FAT, NTFS and network shares
/// refuse become "_", as does a dot at the start; blanks around it go. "Untitled" where nothing is left. May be a title
/// from outside.
QString portableName(const QString &name);

/// `name` followed by `suffix`, the name cut between characters so that the whole has at most so many bytes.
QString fittingName(QString name, const QString &suffix, qsizetype maximumBytes);

}  // namespace kestrel
