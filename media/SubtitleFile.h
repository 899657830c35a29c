#pragma once

#include "TranscodePlan.h"

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <span>

namespace kestrel {

/// A kind of file that holds nothing but subtitles, told by its ending.
struct SubtitleKind {
    const char *ending;
    const char *codec;
    bool isBitmap = false;
};
std::span<const SubtitleKind> subtitleKinds();
/// Of files of another ending those of the first kind.
const SubtitleKind &subtitleKindOf(const QString &path);

/// The file as a plan has it, with what its name tells: "film.pt-BR.forced.srt". Of two that belong together
/// ("film.sub" and "film.idx") the one that tools read.
TranscodePlan::ExternalSubtitle subtitleFile(const QString &path, TranscodePlan::SubtitleUse use = {});

/// The file as tools read it: itself, or a copy in `folder` where its text is not in UTF-8, or where it counts in
/// pictures and does not tell how many of them are a second (`frameRate`, 0 where it is not known).
foundation::Result<QString, tarnwell::Sentence> readableSubtitles(const QString &path, const QString &folder,
                                                                  double frameRate);

}  // namespace kestrel
