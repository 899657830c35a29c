#pragma once

#include "TrackPlan.h"

namespace kestrel {

/// The filters of one source's pictures, up to the size of the result. Those before a bitmap subtitle is laid over
/// them, and those after.
struct SourceFilters {
    QStringList before;
    QStringList after;
};
SourceFilters sourceFilters(const TranscodePlan &plan, const TrackPlan &tracks, const MediaTrack &track,
                            const QString &path, const SourcePiece &piece, bool isJoined);

/// What happens to the pictures of all pieces together, before a picture is laid over them. `seconds` is the length of
/// the result.
QStringList resultFilters(const TranscodePlan &plan, const VideoTrackPlan &video, std::optional<double> seconds);
/// What takes them to the encoder.
QStringList encoderFilters(const VideoTrackPlan &video, std::optional<double> seconds);

/// "[picture][mark]…[result]": lays the watermark's picture, the input `number`, over the labelled picture.
QString watermarkGraph(const TranscodePlan::Watermark &mark, QSize size, int number, const QString &picture,
                       const QString &result);

}  // namespace kestrel
