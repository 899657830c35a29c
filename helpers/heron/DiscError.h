#pragma once

#include <QString>

namespace kestrel::disc {

/// Why a tool gives up. Its name is what the tool prints, its number the tool's exit status: both are lasting.
enum class DiscError {
    Usage = 2,
    Missing = 3,       ///< no such source
    NoPermission = 4,  ///< the source may not be read
    NotADisc = 5,      ///< neither drive, image nor folder, or none with film on it
    Damaged = 6,       ///< the disc's tables are beyond reading
    NoTitle = 7,       ///< no title, chapter or angle of that number
    Protected = 8,
    Read = 9,
    Write = 10,
    NoSpace = 11,
    Exists = 12,     ///< the target is there already and is not a copy begun before
    OtherDisc = 13,  ///< the target is a copy begun of another disc
    NoPicture = 14,
    TooSlow = 15,  ///< the time limit is over
    NoMemory = 16,
    Stopped = 17,  ///< asked to end; what was done is kept
};

/// "missing", "noPermission" …
const char *nameOf(DiscError error);

/// What a failed call of the system means for the source.
DiscError sourceErrorOf(int systemError);
/// And for the target.
DiscError targetErrorOf(int systemError);

}  // namespace kestrel::disc
