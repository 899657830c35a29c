#pragma once

#include "CueTimes.h"
#include "TrackPlan.h"

namespace kestrel {

/// What every run begins with.
QStringList commonHead();
/// What the last run ends with: container and file.
QStringList commonTail(const TrackPlan &tracks, const QString &output);

/// "-ss … -to … -i file:…" of one piece.
QStringList pieceInput(const SourcePiece &piece, const MediaInformation &source, const QString &path,
                       bool copiesPictures);

/// `maps` says where each of the subtitles comes from ("0:3"), `times` where its cues go.
QStringList subtitleArguments(const TranscodePlan &plan, const TrackPlan &tracks, const QStringList &maps,
                              const std::optional<CueTimes> &times);
/// Covers and attachments. `coverPath` is the cover to be attached, where there is one.
QStringList companionArguments(const TrackPlan &tracks, const QString &coverPath);

/// Tags of the file and of its tracks, and chapters; those of the input `chapters`, -1 for none.
QStringList tagArguments(const TranscodePlan &plan, const TrackPlan &tracks, const MediaInformation &source,
                         int chapters);

/// In the order in which the result has them.
QList<OutputExpectation::Track> expectedTracks(const TrackPlan &tracks);

}  // namespace kestrel
