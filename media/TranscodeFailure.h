#pragma once

#include "tarnwell/TextKey.h"

namespace kestrel {

struct TranscodeFailure {
    tarnwell::Sentence sentence;  ///< a general one where nothing more is known
    bool isHopeless = false;      ///< another attempt meets the same end
    int rank = 0;                 ///< the smaller, the closer to the cause
};

/// What a tool or the system reports in `message`. Names of files in it are taken for messages as well.
TranscodeFailure failureIn(const QString &message);

/// What ffmpeg says when it found nothing to convert, and calls a success.
inline constexpr const char *emptyOutputMessage = "Output file is empty";

}  // namespace kestrel
