#include "PartPlacing.h"

#include "foundation/FileNames.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace kestrel::placing {

namespace {

int errorOf(int result)
{
    return result == 0 ? 0 : errno;
}

int syncOne(const char *path, int flags)
{
    const int file = open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC | flags);
    if (file < 0)
        return errno;
    const int error = errorOf(fsync(file));
    close(file);
    return error == EINVAL || error == ENOTSUP ? 0 : error;  // a file system that has nothing to sync
}

/// For file systems that cannot refuse to write over: an empty file takes the name first, and gives way to the part.
/// Hard links are not to be had everywhere either.
int renameOverOwn(const QByteArray &from, const QString &to, bool isFolder)
{
    if (const int error = makeNew(to, isFolder); error != 0)
        return error;
    const QByteArray name = foundation::encodedFileName(to);
    const int error = errorOf(rename(from.constData(), name.constData()));
    if (error != 0)
        isFolder ? rmdir(name.constData()) : unlink(name.constData());
    return error;
}

}  // namespace

int makeNew(const QString &path, bool isFolder)
{
    const QByteArray name = foundation::encodedFileName(path);
    if (isFolder)
        return errorOf(mkdir(name.constData(), 0777));
    const int file = open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0)
        return errno;
    close(file);
    return 0;
}

int makePrivateFolder(const QString &path)
{
    return errorOf(mkdir(foundation::encodedFileName(path).constData(), 0700));
}

int renameToNew(const QString &from, const QString &to, bool isFolder)
{
    const QByteArray fromName = foundation::encodedFileName(from);
    const QByteArray toName = foundation::encodedFileName(to);
    const int error =
        errorOf(renameat2(AT_FDCWD, fromName.constData(), AT_FDCWD, toName.constData(), RENAME_NOREPLACE));
    return error == EINVAL || error == ENOSYS ? renameOverOwn(fromName, to, isFolder) : error;
}

int syncTree(const QString &path)
{
    namespace fs = std::filesystem;
    const QByteArray name = foundation::encodedFileName(path);
    struct stat status = {};
    if (lstat(name.constData(), &status) != 0)
        return errno;
    if (!S_ISDIR(status.st_mode))
        return S_ISREG(status.st_mode) ? syncOne(name.constData(), O_NOFOLLOW) : EINVAL;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(name.constData(), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown;
        const fs::file_status kind = entry->symlink_status(unknown);
        if (!fs::is_regular_file(kind) && !fs::is_directory(kind))
            continue;
        if (const int failure = syncOne(entry->path().c_str(), O_NOFOLLOW); failure != 0)
            return failure;
    }
    return error ? error.value() : syncOne(name.constData(), O_DIRECTORY | O_NOFOLLOW);
}

void syncFolder(const QString &path)
{
    syncOne(foundation::encodedFileName(path).constData(), O_DIRECTORY);
}

bool removePart(const QString &path)
{
    const std::filesystem::path name(foundation::encodedFileName(path).toStdString());
    std::error_code error;
    const std::filesystem::file_status kind = std::filesystem::symlink_status(name, error);
    if (!std::filesystem::is_regular_file(kind) && !std::filesystem::is_directory(kind))
        return true;
    std::filesystem::remove_all(name, error);  // which takes links for what they are
    return std::filesystem::symlink_status(name, error).type() == std::filesystem::file_type::not_found;
}

}  // namespace kestrel::placing
