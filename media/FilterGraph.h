#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// How pictures and sound come from the inputs to the encoders.
struct FilterGraph {
    QString graph;                 ///< for -filter_complex; null where each track has a line of its own
    QString pictures;              ///< what is mapped: "[picture]" or "0:2"
    QStringList sounds;            ///< by track of the result
    QString pictureFilters;        ///< for -vf, without a graph; may be empty
    QStringList soundFilterLines;  ///< for -filter:a:N; may be empty
};

struct GraphInputs {
    QList<SourcePiece> pieces;  ///< each is an input, in this order, from 0
    QList<MediaInformation> sources;
    int watermark = -1;  ///< input of its picture
    int subtitles = -1;  ///< input of a file with subtitles that are pictures, to be burnt in; one a piece
};

/// Whether subtitles that are pictures are laid over the result's.
bool isBitmapBurnt(const TrackPlan &tracks);

FilterGraph filterGraph(const TranscodePlan &plan, const TrackPlan &tracks, const GraphInputs &inputs,
                        std::optional<double> seconds, bool withSound = true);

}  // namespace kestrel
