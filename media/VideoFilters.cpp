#include "VideoFilters.h"

#include "FilterText.h"

#include "tarnwell/SystemInformation.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;

QStringList fieldFilters(const Plan &plan, const VideoTrackPlan &video, const MediaTrack &track)
{
    if (!video.deinterlaces)
        return {};
    // Only flagged pictures are touched, so those without a flag get one.
    QStringList flagged;
    if (track.fieldsAreSeen)
        flagged << (track.fieldOrder == MediaTrack::FieldOrder::BottomFirst ? u"setfield=bff"_s : u"setfield=tff"_s);
    switch (plan.deinterlace) {
        case Plan::Deinterlace::Film:
            // Without the first one the stream claims its fields for pictures and comes out at twice the speed.
            return {u"fps=30000/1001"_s, u"fieldmatch"_s, u"decimate"_s};
        case Plan::Deinterlace::DoubleRate: {
            const bool isUnknown = track.fieldOrder == MediaTrack::FieldOrder::Unknown && track.codec != "dvvideo"_L1;
            return flagged << (isUnknown ? u"bwdif=mode=send_field:deint=all"_s
                                         : u"bwdif=mode=send_field:deint=interlaced"_s);
        }
        case Plan::Deinterlace::On:
            return flagged << u"bwdif=mode=send_frame:deint=all"_s;
        case Plan::Deinterlace::Auto:
        case Plan::Deinterlace::Off:
            break;
    }
    return flagged << u"bwdif=mode=send_frame:deint=interlaced"_s;
}

QStringList toneFilters(const VideoTrackPlan &video, const MediaTrack &track)
{
    if (!video.mapsTones || !track.isHdr())
        return {};
    // What the source does not tell is what such pictures have: without it there is no way from one to the other.
    return {u"setparams=color_primaries=bt2020:color_trc=%1:colorspace=bt2020nc"_s.arg(track.colorTransfer),
            u"zscale=t=linear:npl=100"_s,
            u"format=gbrpf32le"_s,
            u"zscale=p=bt709"_s,
            u"tonemap=tonemap=hable:desat=0"_s,
            u"zscale=t=bt709:m=bt709:r=tv"_s,
            u"format=yuv420p"_s};
}

QStringList cropFilters(const Plan &plan, const MediaTrack &track)
{
    if (plan.crop.isEmpty() || track.width <= 0 || track.height <= 0)
        return {};
    QSize size(track.width, track.height);
    if (track.rotation % 180 != 0)
        size.transpose();
    const int width = std::max(2, int(std::round(size.width() * plan.crop.width())));
    const int height = std::max(2, int(std::round(size.height() * plan.crop.height())));
    const int x = std::min(int(std::round(size.width() * plan.crop.x())), size.width() - width);
    const int y = std::min(int(std::round(size.height() * plan.crop.y())), size.height() - height);
    return {u"crop=%1:%2:%3:%4"_s.arg(width).arg(height).arg(std::max(0, x)).arg(std::max(0, y))};
}

QStringList turnFilters(const Plan &plan)
{
    QStringList filters;
    if (plan.turn == Plan::Turn::Clockwise)
        filters << u"transpose=clock"_s;
    else if (plan.turn == Plan::Turn::CounterClockwise)
        filters << u"transpose=cclock"_s;
    else if (plan.turn == Plan::Turn::UpsideDown)
        filters << u"hflip"_s << u"vflip"_s;
    if (plan.mirrored)
        filters << u"hflip"_s;
    return filters;
}

/// Of the picture after it was cropped and turned, as it would be shown; 0 where it is not known.
double shownAspect(const Plan &plan, const MediaTrack &track)
{
    double width = track.width * (track.sampleAspect > 0 ? track.sampleAspect : 1), height = track.height;
    if (width <= 0 || height <= 0)
        return 0;
    if (track.rotation % 180 != 0)
        std::swap(width, height);
    if (!plan.crop.isEmpty()) {
        width *= plan.crop.width();
        height *= plan.crop.height();
    }
    if (plan.turn == Plan::Turn::Clockwise || plan.turn == Plan::Turn::CounterClockwise)
        std::swap(width, height);
    return width / height;
}

/// Takes pictures of any shape into one of this size, with bars where they do not fill it.
QStringList fittedFilters(QSize size, double sampleAspect, double aspect, const QString &flags)
{
    const double frame = size.width() * sampleAspect / size.height();
    QSize inner = size;
    if (aspect > frame)
        inner.setHeight(std::max(2, int(std::round(size.height() * frame / aspect / 2)) * 2));
    else if (aspect > 0)
        inner.setWidth(std::max(2, int(std::round(size.width() * aspect / frame / 2)) * 2));
    QStringList filters{u"scale=%1:%2%3"_s.arg(inner.width()).arg(inner.height()).arg(flags)};
    if (inner != size)
        filters << u"pad=%1:%2:-1:-1"_s.arg(size.width()).arg(size.height());
    filters << u"setsar="_s + numberText(sampleAspect);
    return filters;
}

/// Television has two shapes of picture, whatever the number of its samples.
double listedAspect(const VideoEncoder &encoder, QSize size, double aspect)
{
    if (encoder.sampleAspect > 0)
        return encoder.sampleAspect;
    const double shape = aspect > 1.55 ? 16.0 / 9 : 4.0 / 3;
    return shape * size.height() / size.width();
}

QStringList sizeFilters(const Plan &plan, const VideoTrackPlan &video, const MediaTrack &track, bool isJoined)
{
    const bool isInterlaced = track.isInterlaced() && !video.deinterlaces;
    QString flags = plan.best ? u":flags=lanczos+accurate_rnd"_s : QString();
    if (isInterlaced)
        flags += u":interl=1"_s;
    // The usual range: few players heed the other. Only what is lossless keeps it.
    const bool isFull = track.colorRange == "pc"_L1 || track.pixelFormat.startsWith("yuvj"_L1);
    const bool becomesUsual =
        isFull && video.pixelFormat.startsWith("yuv"_L1) && !video.pixelFormat.startsWith("yuvj"_L1);
    if (becomesUsual)
        flags += video.encoder->isLossless ? u":out_range=pc"_s : u":out_range=tv"_s;
    const double aspect = shownAspect(plan, track);
    if (video.size.isEmpty() || aspect == 0)
        return {u"scale=trunc(iw/2)*2:trunc(ih/2)*2"_s + flags};
    if (video.encoder->sizes)
        return fittedFilters(video.size, listedAspect(*video.encoder, video.size, aspect), aspect, flags);

    const bool isSquare = std::abs(track.sampleAspect - 1) < 1e-6;
    if (isJoined) {
        const double own = shownAspect(plan, *video.source);
        return fittedFilters(video.size, own > 0 ? own * video.size.height() / video.size.width() : 1, aspect, flags);
    }
    const bool needsSquare = video.encoder->is("gif"_L1) || video.encoder->is("apng"_L1);
    QSize present = video.uprightSize;
    if (plan.turn == Plan::Turn::Clockwise || plan.turn == Plan::Turn::CounterClockwise)
        present.transpose();
    if (video.size == present && plan.crop.isEmpty() && !becomesUsual && (isSquare || !needsSquare))
        return {};
    QStringList filters{u"scale=%1:%2%3"_s.arg(video.size.width()).arg(video.size.height()).arg(flags)};
    // Rounding to even sides would leave samples a hair off square.
    if (isSquare || needsSquare)
        filters << u"setsar=1"_s;
    return filters;
}

/// The cues' own times are those of the source.
QStringList burnedTextFilters(const Plan &plan, const TrackPlan &tracks, const QString &path, const SourcePiece &piece)
{
    if (!tracks.burned || piece.source != 0 || (tracks.burned->source && tracks.burned->source->isBitmap) ||
        tracks.burned->codec == "hdmv_pgs_subtitle"_L1 || tracks.burned->codec == "dvd_subtitle"_L1)
        return {};
    QString filter;
    if (tracks.burned->file >= 0) {
        filter = u"subtitles=filename="_s + filterValue(plan.externalSubtitles.at(tracks.burned->file).path);
    } else {
        // Counted over the tracks of subtitles alone.
        filter = u"subtitles=filename=%1:si=%2"_s.arg(filterValue(path)).arg(tracks.burnedNumber);
    }
    const double shift = piece.start.value_or(0) + tracks.burnedStart;
    if (shift == 0)
        return {filter};
    const QString start = numberText(shift);
    return {u"setpts=PTS+%1/TB"_s.arg(start), filter, u"setpts=PTS-%1/TB"_s.arg(start)};
}

QString cornerPlace(Qt::Alignment corner, Qt::Alignment low, Qt::Alignment high, const QString &whole,
                    const QString &part, int margin)
{
    if (corner & low)
        return QString::number(margin);
    if (corner & high)
        return u"%1-%2-%3"_s.arg(whole, part).arg(margin);
    return u"(%1-%2)/2"_s.arg(whole, part);
}

int markMargin(QSize size)
{
    return std::max(2, size.width() / 50);
}

QString watermarkText(const Plan::Watermark &mark, QSize size)
{
    const auto isEastAsian = [](QChar letter) { return letter.unicode() >= 0x2E80; };
    const bool isWide = std::ranges::any_of(mark.text, isEastAsian);
    qsizetype longest = 1;
    for (const QString &line : mark.text.split(u'\n'))
        longest = std::max(longest, line.size());
    const double letterWidth = isWide ? 1 : 0.52;
    const int width = size.isEmpty() ? 640 : size.width();
    const int height = size.isEmpty() ? 360 : size.height();
    const int fontSize =
        std::clamp(int(mark.size * width / (letterWidth * double(longest))), 8, std::max(8, height / 4));
    const QString opacity = numberText(mark.opacity);
    const int margin = markMargin({width, height});
    return u"drawtext=font=%1:text=%2:expansion=none:fontsize=%3:fontcolor=white@%4:shadowcolor=black@%4:shadowx=1:"
           "shadowy=1:x=%5:y=%6"_s.arg(
               filterValue(isWide ? u"Noto Sans CJK JP"_s : u"Liberation Sans"_s), filterValue(mark.text),
               QString::number(fontSize), opacity,
               cornerPlace(mark.corner, Qt::AlignLeft, Qt::AlignRight, u"w"_s, u"tw"_s, margin),
               cornerPlace(mark.corner, Qt::AlignTop, Qt::AlignBottom, u"h"_s, u"th"_s, margin));
}

/// One palette for all takes all pictures into memory until the last one was seen.
QString paletteFilter(const VideoTrackPlan &video, std::optional<double> seconds)
{
    constexpr double mostBytes = 400e6;
    const double rate = video.frameRate > 0 ? video.frameRate : 25;
    const double bytes = 4.0 * video.size.width() * video.size.height() * rate * seconds.value_or(1e6);
    if (!video.size.isEmpty() && bytes <= mostBytes)
        return u"split[palettes][pictures];[palettes]palettegen=stats_mode=diff[palette];"
               "[pictures][palette]paletteuse=dither=bayer:bayer_scale=3:diff_mode=rectangle"_s;
    return u"split[palettes][pictures];[palettes]palettegen=stats_mode=single[palette];"
           "[pictures][palette]paletteuse=dither=bayer:bayer_scale=3:new=1"_s;
}

}  // namespace

SourceFilters sourceFilters(const Plan &plan, const TrackPlan &tracks, const MediaTrack &track, const QString &path,
                            const SourcePiece &piece, bool isJoined)
{
    const VideoTrackPlan &video = *tracks.video;
    SourceFilters filters;
    filters.before = fieldFilters(plan, video, track) + toneFilters(video, track);
    filters.after = cropFilters(plan, track) + turnFilters(plan) + sizeFilters(plan, video, track, isJoined) +
                    burnedTextFilters(plan, tracks, path, piece);
    if (isJoined) {
        const double rate = video.frameRate > 0 ? video.frameRate : video.source->frameRate;
        filters.after << u"fps="_s + rateText(rate > 0 ? rate : 25) << u"format="_s + video.pixelFormat;
    }
    return filters;
}

QStringList resultFilters(const Plan &plan, const VideoTrackPlan &video, std::optional<double> seconds)
{
    QStringList filters;
    if (plan.brightness != 0 || plan.contrast != 1 || plan.saturation != 1)
        filters << u"eq=brightness=%1:contrast=%2:saturation=%3"_s.arg(
            numberText(plan.brightness), numberText(plan.contrast), numberText(plan.saturation));
    if (plan.speedFactor != 1)
        filters << u"setpts=PTS/"_s + numberText(plan.speedFactor);
    if (video.frameRate > 0)
        filters << u"fps="_s + rateText(video.frameRate);
    if (plan.watermark && plan.watermark->imagePath.isEmpty())
        filters << watermarkText(*plan.watermark, video.size);
    if (plan.fadeIn > 0)
        filters << u"fade=t=in:d="_s + numberText(plan.fadeIn);
    if (plan.fadeOut > 0 && seconds)
        filters << u"fade=t=out:st=%1:d=%2"_s.arg(numberText(std::max(0.0, *seconds - plan.fadeOut)),
                                                  numberText(plan.fadeOut));
    return filters;
}

QStringList encoderFilters(const VideoTrackPlan &video, std::optional<double> seconds)
{
    if (video.encoder->is("gif"_L1))
        return {paletteFilter(video, seconds)};
    if (video.isHardware)
        return {QString::fromLatin1(tarnwell::hardwareEncoderArguments.filter)};
    return {u"format="_s + video.pixelFormat};
}

QString watermarkGraph(const Plan::Watermark &mark, QSize size, int number, const QString &picture,
                       const QString &result)
{
    const int width = std::max(2, int(mark.size * (size.isEmpty() ? 640 : size.width())));
    const int margin = markMargin(size.isEmpty() ? QSize(640, 360) : size);
    return u"[%1:v]scale=%2:-1,format=rgba,colorchannelmixer=aa=%3[mark];[%4][mark]overlay=%5:%6:format=auto[%7]"_s.arg(
        QString::number(number), QString::number(width), numberText(mark.opacity), picture,
        cornerPlace(mark.corner, Qt::AlignLeft, Qt::AlignRight, u"W"_s, u"w"_s, margin),
        cornerPlace(mark.corner, Qt::AlignTop, Qt::AlignBottom, u"H"_s, u"h"_s, margin), result);
}

}  // namespace kestrel
