#include "DiskSpace.h"

#include <QFileInfo>
#include <QStorageInfo>

namespace kestrel {

std::optional<DiskSpace> diskSpaceOf(const QString &folder)
{
    QString place = folder;
    while (!place.isEmpty() && !QFileInfo::exists(place)) {
        const QString parent = QFileInfo(place).path();
        if (parent == place)
            return std::nullopt;
        place = parent;
    }
    const QStorageInfo storage(place);
    if (!storage.isValid() || !storage.isReady() || storage.bytesAvailable() < 0)
        return std::nullopt;
    // The root path as well: file systems in memory are all called "tmpfs".
    return DiskSpace{storage.device() + '\n' + storage.rootPath().toUtf8(), storage.bytesAvailable(),
                     std::max<qint64>(0, storage.bytesTotal())};
}

}  // namespace kestrel
