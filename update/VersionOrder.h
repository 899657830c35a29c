#pragma once

#include <QStringView>

namespace kestrel {

/// -1, 0 or 1, as the server's version is older than, the same as or newer than the local one. Components between dots
/// are compared as whole numbers of any length, read leniently (Numbers.h): "2.0b" is 2.0. One that a version lacks
/// counts as -1, so that 3.4 stands below 3.4.0.
int compareVersions(QStringView server, QStringView local);

}  // namespace kestrel
