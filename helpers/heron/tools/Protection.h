#pragma once

#include "DiscTables.h"

namespace kestrel::disc {

/// What some sectors of a title set's film said.
struct FilmSamples {
    int scrambled = 0;   ///< sectors that are marked as scrambled
    int readable = 0;    ///< places that could be read
    int unreadable = 0;  ///< places within the disc that could not
};

/// Marked sectors, or, in a drive, film that cannot be read anywhere although the disc's tables could.
bool isProtectedBy(const FilmSamples &samples, DiscSource::Kind kind);

struct FilmState {
    bool isProtected = false;
    bool isTruncated = false;
};

/// Looks at a few places of every title set, most of them in the main title's, for three seconds at most.
FilmState lookAtFilm(const DiscSource &source, const DiscTables &tables);

}  // namespace kestrel::disc
