#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// What every run begins with.
QStringList commonHead();
/// What the last run ends with: container and file.
QStringList commonTail(const TrackPlan &tracks, const QString &output);

/// "-ss … -to … -i file:…" of one piece.
QStringList pieceInput(const SourcePiece &piece, const MediaInformation &source, const QString &path,
                       bool copiesPictures);

/// Subtitles, covers and attachments. `subtitleMaps` says where each of the subtitles comes from ("0:3"), `cut` is the
/// length of the only piece that is kept, nothing where all is; `coverPath` is the cover to be attached, where there is
/// one.
QStringList companionArguments(const TranscodePlan &plan, const TrackPlan &tracks, const QStringList &subtitleMaps,
                               std::optional<double> cut, const QString &coverPath);

/// Tags of the file and of its tracks, and chapters; those of the input `chapters`, -1 for none.
QStringList tagArguments(const TranscodePlan &plan, const TrackPlan &tracks, const MediaInformation &source,
                         int chapters);

/// In the order in which the result has them.
QList<OutputExpectation::Track> expectedTracks(const TrackPlan &tracks);

}  // namespace kestrel
