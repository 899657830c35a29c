#pragma once

#include <QStringList>

namespace kestrel {

struct MediaFiles {
    QStringList paths;    ///< absolute, in the form of foundation/FileNames.h
    bool isPart = false;  ///< a folder was beyond all measure, and there may be more in it
};

/// The files that `paths` stand for: a file is itself, whatever it is called; a folder is the media files in it and
/// below, in natural order ("2" before "10"). Links to folders are not followed. Waits for the disk; any thread.
MediaFiles mediaFiles(const QStringList &paths);

/// Sorts paths as people count: folder by folder, digits by their number, letters without regard to case.
void sortNaturally(QStringList &paths);

/// Name filters of media files ("*.mp4"), for dialogs and folders.
QStringList mediaNameFilters();

}  // namespace kestrel
