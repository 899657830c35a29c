#pragma once

#include "tarnwell/TextKey.h"

#include "helpers/heron/DiscContents.h"

namespace kestrel {

/// Lengths that differ by more than a second and one in a hundred are not the same.
bool isSameLength(double seconds, double expected);

/// What a copy lacks of the disc that it was made of; none where it holds the same titles, each with its length,
/// chapters and tracks.
tarnwell::Sentence discMismatch(const disc::DiscContents &wanted, const disc::DiscContents &found);
/// The same of one title.
tarnwell::Sentence titleMismatch(const disc::DiscTitle &wanted, const disc::DiscTitle &found);

}  // namespace kestrel
