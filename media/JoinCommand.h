#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// Whether files of these parameters can stand one behind the other without being encoded. ffmpeg joins others as well,
/// without a word, into a file that breaks off at the seam.
bool canBeJoined(const QList<MediaInformation> &sources);

/// Several pieces or files in one, all tracks copied.
foundation::Result<TranscodeSteps, tarnwell::Sentence> joinSteps(const TranscodePlan &plan,
                                                                 const QList<MediaInformation> &sources,
                                                                 TrackPlan tracks, const QList<SourcePiece> &pieces,
                                                                 const TranscodePaths &paths);

}  // namespace kestrel
