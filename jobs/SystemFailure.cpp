#include "SystemFailure.h"

#include <cerrno>

namespace kestrel {

using namespace tarnwell;

namespace {

struct KnownError {
    int number;
    const char *message;  ///< as tools print it, in the C locale
    TextKey sentence;
    bool isHopeless = false;
};

constexpr TextKey diskFull = "There is no space left on the disk. Free some space and convert again."_key;
constexpr TextKey notAllowed =
    "Reading the file or writing to the output folder is not allowed. Check their permissions."_key;
constexpr TextKey gone = "The file is no longer where it was."_key;
constexpr TextKey diskFailed = "The disk could not be read or written."_key;

// The first match counts: what stops the writing comes before what a source may cause.
constexpr KnownError knownErrors[] = {
    {ENOSPC, "No space left on device", diskFull, true},
    {EDQUOT, "Disk quota exceeded", diskFull, true},
    {EFBIG, "File too large", "The disk of the output folder cannot hold a file of this size."_key, true},
    {EROFS, "Read-only file system", "The output folder is read-only. Choose another one in the settings."_key, true},
    {EACCES, "Permission denied", notAllowed},
    {EPERM, "Operation not permitted", notAllowed},
    {ENOMEM, "Cannot allocate memory", "There is not enough memory to convert this file."_key},
    {ENOENT, "No such file or directory", gone},
    {ENOTDIR, "Not a directory", gone},
    {EIO, "Input/output error", diskFailed},
    {ENODEV, "No such device", diskFailed},
    {ENXIO, "No such device or address", diskFailed},
    {ESTALE, "Stale file handle", diskFailed},
    {ENOTCONN, "Transport endpoint is not connected", diskFailed},
    {EHOSTDOWN, "Host is down", diskFailed},
};

}  // namespace

SystemFailure systemFailure(int error)
{
    for (const KnownError &known : knownErrors) {
        if (known.number == error)
            return {known.sentence, known.isHopeless};
    }
    return {};
}

SystemFailure systemFailureIn(const QString &messages)
{
    for (const KnownError &known : knownErrors) {
        if (messages.contains(QLatin1StringView(known.message), Qt::CaseInsensitive))
            return {known.sentence, known.isHopeless};
    }
    return {};
}

}  // namespace kestrel
