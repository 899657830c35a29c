#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// The filters of one sound track, its channels in their places; empty where it stays as it is. `seconds` is the length
/// of the result.
QStringList soundFilters(const TranscodePlan &plan, const SoundTrackPlan &sound, std::optional<double> seconds);

/// Takes the first eight of more channels whose places nobody tells; empty for what needs no such filter.
QStringList placedChannels(const MediaTrack &track);

/// The encoder's arguments for the sound track `number` of the result.
QStringList soundArguments(const TranscodePlan &plan, const SoundTrackPlan &sound, int number);

}  // namespace kestrel
