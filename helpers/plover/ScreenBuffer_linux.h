#pragma once

#include "FrameFit.h"

#include <spa/buffer/buffer.h>
#include <spa/param/video/raw.h>

#include <cstdint>

namespace kestrel::frames {

inline constexpr int64_t second = 1'000'000'000;

int64_t monotonic();  ///< nanoseconds
int64_t wallClock();  ///< microseconds since 1970

/// When the picture was taken, by the wall clock, where the desktop says so by a clock that can be believed; else now.
int64_t timeOf(const spa_buffer *buffer);

/// The part of the buffer that is the picture: nothing where it is damaged, or only the pointer moved.
Picture pictureOf(const spa_buffer *buffer, const spa_video_info_raw &format);

}  // namespace kestrel::frames
