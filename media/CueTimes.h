#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// Where the cues of subtitles go where the result has other times than its source.
struct CueTimes {
    struct Stretch {
        double start = 0, end = 0;  ///< seconds
    };
    QList<Stretch> kept;  ///< of what is read, one after the other
    double speed = 1;
};

/// Whether subtitles can follow what the plan does to the times: pictures only a cut at both ends.
bool canFollow(const TranscodePlan &plan, bool isBitmap);

/// Nothing where all cues stay where they are. A single piece is counted from its start, to which the input is sought;
/// several are stretches of the whole.
std::optional<CueTimes> cueTimes(const TranscodePlan &plan, const QList<SourcePiece> &pieces);

/// As a filter of ffmpeg's packets. Cues outside are dropped, and those at the ends shortened: the container would move
/// everything else to make room for them.
QString cueFilter(const CueTimes &times, bool isBitmap);

}  // namespace kestrel
