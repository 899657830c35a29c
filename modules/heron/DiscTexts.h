#pragma once

#include "DiscPlan.h"

#include "tarnwell/TextKey.h"

#include <span>

namespace kestrel {

/// A way to keep a disc, as it is offered.
struct DiscWayRow {
    DiscWay way;
    tarnwell::TextKey name;      ///< "Disc image (ISO)"
    tarnwell::TextKey sentence;  ///< what comes of it
};
/// In the order in which they are shown.
std::span<const DiscWayRow> discWayRows();

/// "English, Dolby Digital 5.1, commentary"; `language` is the interface's, a tag.
QString soundText(const disc::DiscAudio &track, const QString &language);
/// "French, for the hard of hearing".
QString subtitleText(const disc::DiscSubtitle &track, const QString &language);
/// "PAL, 16:9, 12 chapters, 2 angles".
QString titleFactsText(const disc::DiscTitle &title);

/// About what the result takes, in bytes.
qint64 resultBytes(DiscWay way, const Preset &preset, const disc::DiscContents &contents,
                   const QList<disc::DiscTitle> &titles);
/// What the plans, one after another, take until the last of them is done: their results, and what the largest work
/// takes beside its own.
qint64 neededBytes(const QList<DiscPlan> &plans, const disc::DiscContents &contents);

}  // namespace kestrel
