#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace kestrel {

struct DiskSpace {
    QByteArray device;     ///< which file system; the same for folders that share their space
    qint64 available = 0;  ///< bytes
    qint64 total = 0;      ///< bytes; 0 where that is not known
};

/// Of the folder, or the nearest one above it that exists; nothing where the system cannot tell.
using DiskSpaceFunction = std::function<std::optional<DiskSpace>(const QString &folder)>;

std::optional<DiskSpace> diskSpaceOf(const QString &folder);

}  // namespace kestrel
