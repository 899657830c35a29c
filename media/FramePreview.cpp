#include "FramePreview.h"

#include "FilterGraph.h"
#include "FilterText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// What changes pictures and not their times: one picture has none.
TranscodePlan timeless(TranscodePlan plan)
{
    plan.sources = plan.sources.mid(0, 1);
    plan.pieces.clear();
    plan.speedFactor = 1;
    plan.fadeIn = plan.fadeOut = 0;
    plan.frameRate = 0;
    plan.rateControl = TranscodePlan::RateControl::Preset;
    plan.hardware = false;
    // It would have to see many pictures before the first comes out.
    if (plan.deinterlace == TranscodePlan::Deinterlace::Film ||
        plan.deinterlace == TranscodePlan::Deinterlace::DoubleRate)
        plan.deinterlace = TranscodePlan::Deinterlace::On;
    return plan;
}

QString fittingFilter(QSize size)
{
    return u"scale=w='min(%1,iw*sar)':h='min(%2,ih)':force_original_aspect_ratio=decrease,setsar=1"_s.arg(size.width())
        .arg(size.height());
}

/// With one thread: there may be many of these.
QStringList pictureAt(double seconds, const QString &path, PreviewPlace place)
{
    QStringList arguments{u"-hide_banner"_s,        u"-nostdin"_s, u"-loglevel"_s, u"error"_s,
                          u"-protocol_whitelist"_s, u"file"_s,     u"-threads"_s,  u"1"_s,
                          u"-filter_threads"_s,     u"1"_s};
    if (place == PreviewPlace::KeyPicture)
        arguments << u"-skip_frame"_s << u"nokey"_s << u"-noaccurate_seek"_s;
    return arguments << u"-ss"_s << numberText(std::max(0.0, seconds)) << u"-i"_s << u"file:"_s + path;
}

/// Adds the files that lie over the picture.
GraphInputs addOverlays(const TranscodePlan &plan, const TrackPlan &tracks, const MediaInformation &source,
                        double seconds, QStringList &arguments)
{
    GraphInputs inputs{.pieces = {{.source = 0, .start = seconds, .end = {}, .seconds = {}}}, .sources = {source}};
    if (plan.watermark && !plan.watermark->imagePath.isEmpty()) {
        arguments << u"-i"_s << u"file:"_s + plan.watermark->imagePath;
        inputs.watermark = 1;
    }
    if (tracks.burned && tracks.burned->file >= 0 && isBitmapBurnt(tracks)) {
        inputs.subtitles = inputs.watermark < 0 ? 1 : 2;
        arguments << u"-seek_timestamp"_s << u"1"_s << u"-itsoffset"_s << numberText(-seconds) << u"-i"_s
                  << u"file:"_s + plan.externalSubtitles.at(tracks.burned->file).path;
    }
    return inputs;
}

}  // namespace

QStringList previewArguments(const TranscodePlan &wanted, const MediaInformation &source, double seconds, QSize size,
                             PreviewPicture picture, PreviewPlace place)
{
    TranscodePlan plan = timeless(wanted);
    auto tracks = planTracks(plan, {source}, {});
    if (!tracks || !tracks->video || plan.sources.isEmpty())
        return {};
    tracks->sounds.clear();
    const bool isChanged = picture == PreviewPicture::Result && tracks->video->encoder;
    if (tracks->video->encoder)
        tracks->video->frameRate = 0;

    QStringList arguments = pictureAt(seconds, plan.sources.first(), place);
    QString map = u"0:%1"_s.arg(tracks->video->source->index), filter = fittingFilter(size), graph;
    if (isChanged) {
        const GraphInputs inputs = addOverlays(plan, *tracks, source, seconds, arguments);
        const FilterGraph whole = filterGraph(plan, *tracks, inputs, {}, false);
        if (whole.graph.isEmpty()) {
            filter = whole.pictureFilters + u',' + filter;
        } else {
            graph = whole.graph + u";[picture]"_s + filter + u"[preview]"_s;
            map = u"[preview]"_s;
        }
    }
    if (graph.isEmpty())
        arguments << u"-map"_s << map << u"-vf"_s << filter;
    else
        arguments << u"-filter_complex"_s << graph << u"-map"_s << map;
    // A picture before the time that was asked for would be thrown away.
    arguments << u"-fps_mode"_s << u"passthrough"_s;
    return arguments << u"-frames:v"_s << u"1"_s << u"-c:v"_s << u"ppm"_s << u"-pix_fmt"_s << u"rgb24"_s << u"-f"_s
                     << u"image2pipe"_s << u"pipe:1"_s;
}

TranscodePlan trialPlan(TranscodePlan plan, const MediaInformation &source, double seconds)
{
    constexpr double length = 10;
    const double duration = source.duration.value_or(seconds + length);
    const double start = std::clamp(seconds, 0.0, std::max(0.0, duration - length));
    if (plan.rateControl == TranscodePlan::RateControl::Size && source.duration) {
        double kept = plan.pieces.isEmpty() ? duration : 0;
        for (const TranscodePlan::Piece &piece : std::as_const(plan.pieces))
            kept += piece.end - piece.start;
        // The same share of the size that these seconds would have in the whole.
        plan.maximumBytes = qint64(double(plan.maximumBytes) * std::min(length, duration) / std::max(kept, 1.0));
    }
    plan.sources = plan.sources.mid(0, 1);
    plan.pieces = {{.start = start, .end = std::min(start + length, duration)}};
    plan.exactCuts = true;
    return plan;
}

}  // namespace kestrel
