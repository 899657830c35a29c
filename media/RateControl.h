#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// What the encoder of pictures is told about quality or size.
struct RateTarget {
    qint64 bitRate = 0;  ///< bits a second; 0 for constant quality
    bool hasTwoPasses = false;
};

/// For a plan with a largest size the pictures, and where it must be the sound, of `tracks` are made smaller until they
/// fit; a reason where even then they do not. `seconds` is the length of the result.
foundation::Result<RateTarget, tarnwell::Sentence> planRates(const TranscodePlan &plan, TrackPlan &tracks,
                                                             std::optional<double> seconds);

/// The encoder's arguments. `pass` is 0 for the only one; `log` is where the first one leaves what it saw.
QStringList videoArguments(const TranscodePlan &plan, const VideoTrackPlan &video, const RateTarget &rate, int pass,
                           const QString &log);

/// An upper guess at the size of the result; 0 where nothing is known.
qint64 expectedSize(const TranscodePlan &plan, const TrackPlan &tracks, const RateTarget &rate,
                    const QList<MediaInformation> &sources, std::optional<double> seconds);

}  // namespace kestrel
