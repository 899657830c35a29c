#pragma once

#include "Options.h"
#include "media/TranscodePlan.h"

namespace kestrel::cli {

/// What `convert` and what goes through the same encoder is told.
struct ConvertRequest {
    TranscodePlan plan;
    QString folder;  ///< absolute; null for the settings' folder
    bool joins = false;
    /// Tracks by their number in the file, from 1, of sound and of subtitles; looked up when the file is known.
    std::optional<QList<int>> audioNumbers;
    std::optional<QList<int>> subtitleNumbers;
    int burnedSubtitle = 0;  ///< 0 for none
};

std::span<const Option<ConvertRequest>> convertOptions();

}  // namespace kestrel::cli
