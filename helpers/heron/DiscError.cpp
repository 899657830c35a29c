#include "DiscError.h"

#include <cerrno>

namespace kestrel::disc {

const char *nameOf(DiscError error)
{
    switch (error) {
        case DiscError::Usage:
            return "usage";
        case DiscError::Missing:
            return "missing";
        case DiscError::NoPermission:
            return "noPermission";
        case DiscError::NotADisc:
            return "notADisc";
        case DiscError::Damaged:
            return "damaged";
        case DiscError::NoTitle:
            return "noTitle";
        case DiscError::Protected:
            return "protected";
        case DiscError::Read:
            return "read";
        case DiscError::Write:
            return "write";
        case DiscError::NoSpace:
            return "noSpace";
        case DiscError::Exists:
            return "exists";
        case DiscError::OtherDisc:
            return "otherDisc";
        case DiscError::NoPicture:
            return "noPicture";
        case DiscError::TooSlow:
            return "tooSlow";
        case DiscError::NoMemory:
            return "noMemory";
        case DiscError::Stopped:
            return "stopped";
    }
    return "damaged";
}

DiscError sourceErrorOf(int systemError)
{
    switch (systemError) {
        case ENOENT:
        case ENOTDIR:
        case ENODEV:
        case ENOMEDIUM:
        case ENXIO:
        case ESTALE:
            return DiscError::Missing;
        case EACCES:
        case EPERM:
            return DiscError::NoPermission;
        default:
            return DiscError::Read;
    }
}

DiscError targetErrorOf(int systemError)
{
    switch (systemError) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return DiscError::NoSpace;
        case EEXIST:
            return DiscError::Exists;
        default:
            return DiscError::Write;
    }
}

}  // namespace kestrel::disc
