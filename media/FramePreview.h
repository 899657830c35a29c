#pragma once

#include "TranscodeCommand.h"

#include <QSize>

namespace kestrel {

enum class PreviewPicture { Source, Result };
/// The key picture at or before a time is there at once, as nothing before it is decoded; the exact one is not.
enum class PreviewPlace { KeyPicture, Exact };

/// ffmpeg's arguments that write one picture as PPM to the standard output: the source's at `seconds`, as it is or with
/// all that the plan does to pictures, no larger than `size`. Pure. Empty where there is no picture.
QStringList previewArguments(const TranscodePlan &plan, const MediaInformation &source, double seconds, QSize size,
                             PreviewPicture picture, PreviewPlace place);

/// The same plan for ten seconds from `seconds` of its first source, encoded as the whole would be.
TranscodePlan trialPlan(TranscodePlan plan, const MediaInformation &source, double seconds);

}  // namespace kestrel
