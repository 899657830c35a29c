#pragma once

#include "media/MediaInformation.h"

#include <QRectF>

namespace kestrel {

/// What is left of a film's picture without black bars, as a plan has it: in fractions of the upright picture. `part`
/// is what was found, in pixels of the coded one. Empty where that leaves nothing to cut off.
QRectF cropOf(const QRect &part, const MediaTrack &video);

}  // namespace kestrel
