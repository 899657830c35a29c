#pragma once

#include <QString>

/// The system's side of placing a file or a folder. Each answers 0 or the system's error number.
namespace kestrel::placing {

/// Makes an empty file or folder that was not there.
int makeNew(const QString &path, bool isFolder);
/// A folder for its owner alone.
int makePrivateFolder(const QString &path);

/// Gives `from` the name `to`. EEXIST where that is taken: nothing is ever written over.
int renameToNew(const QString &from, const QString &to, bool isFolder);

/// Waits until a file, or a folder with all that is in it, is on the disk. Links are not followed.
int syncTree(const QString &path);

/// Waits until the names in a folder are on the disk.
void syncFolder(const QString &path);

/// Removes a file or a folder with all that is in it; leaves links and other things alone. False where it is still
/// there.
bool removePart(const QString &path);

}  // namespace kestrel::placing
