#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// The filters of one sound track; empty where it stays as it is. `seconds` is the length of the result.
QStringList soundFilters(const TranscodePlan &plan, const SoundTrackPlan &sound, std::optional<double> seconds);

/// The encoder's arguments for the sound track `number` of the result.
QStringList soundArguments(const TranscodePlan &plan, const SoundTrackPlan &sound, int number);

}  // namespace kestrel
