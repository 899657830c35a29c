#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// Where the subtitles of a result come from.
struct SubtitleInputs {
    QStringList arguments;     ///< "-i …" of what is read beside the film
    int count = 0;             ///< of those
    QStringList maps;          ///< by track of the result: "0:3"
    QList<TranscodeRun> runs;  ///< that make some of them before
};

/// `tracks` are told which of theirs are made before. `film` is the number of the input that has the source's tracks on
/// the clock of its cues (see CueTimes), -1 for none; `first` that of the next input.
SubtitleInputs subtitleInputs(const TranscodePlan &plan, const MediaInformation &source, TrackPlan &tracks,
                              const QList<SourcePiece> &pieces, const QString &workFolder, int film, int first);

/// A file of subtitles from its beginning, as much earlier as the piece begins.
QStringList subtitleFileInput(const QString &path, const SourcePiece &piece);

}  // namespace kestrel
