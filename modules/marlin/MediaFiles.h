#pragma once

#include <QStringList>

namespace kestrel {

/// The files that `paths` stand for: a file is itself, whatever it is called; a folder is the media files in it and
/// below, by their names, in order. Links to folders are not followed and a tree beyond all measure is looked at in
/// part. Absolute paths.
QStringList mediaFiles(const QStringList &paths);

/// Name filters of media files ("*.mp4"), for dialogs and folders.
QStringList mediaNameFilters();

}  // namespace kestrel
