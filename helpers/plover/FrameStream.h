#pragma once

#include "FrameFit.h"

#include <string>

namespace kestrel::frames {

/// The order of a pixel's bytes; the fourth one says nothing.
enum class PixelOrder { BlueFirst, RedFirst };

/// The parts of a Matroska stream of uncompressed pictures, each with the time at which it was taken, which needs no
/// seeking and is whole after each picture. Everything but the pixels themselves. `rate` is for readers who want to
/// know one before they have seen pictures.
std::string streamHead(Size size, PixelOrder order, double rate);
/// What stands before a picture's pixels. `time` is in microseconds since 1970.
std::string pictureHead(Size size, int64_t time);

}  // namespace kestrel::frames
