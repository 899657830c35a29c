#pragma once

#include "TranscodeCommand.h"

#include <QSize>

namespace kestrel {

enum class PreviewPicture { Source, Result };

/// ffmpeg's arguments that write one picture as PPM to the standard output: the source's key picture at or before
/// `seconds`, as it is or with all that the plan does to pictures, no larger than `size`. Pure and quick: nothing
/// before that picture is decoded. Empty where there is no picture.
QStringList previewArguments(const TranscodePlan &plan, const MediaInformation &source, double seconds, QSize size,
                             PreviewPicture picture);

/// The same plan for ten seconds from `seconds` of its first source, encoded as the whole would be.
TranscodePlan trialPlan(TranscodePlan plan, const MediaInformation &source, double seconds);

}  // namespace kestrel
