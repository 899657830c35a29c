#include "FilterText.h"
#include "TrackPlan.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;

/// The format of the encoder that loses least. Pictures of red, green and blue become 4:2:0 where it has no such
/// format: few players show anything finer.
QString bestFormat(const VideoEncoder &encoder, const QString &own, const PixelKind &source, bool isPlain)
{
    const QStringList formats = tableWords(encoder.pixelFormats);
    if (encoder.isLossless && !isPlain && formats.contains(own))
        return own;
    const auto cost = [&](const QString &format) {
        const PixelKind kind = pixelKind(format, 8);
        if (isPlain)
            return kind.isRgb * 100 + (kind.depth - 8) * 10 + kind.chroma + (source.hasAlpha && !kind.hasAlpha);
        const int wantedChroma = source.isRgb ? 0 : source.chroma;
        const int wantedDepth = encoder.isLossless ? source.depth : std::min(source.depth, 10);
        int sum = 0;
        sum += kind.isRgb == source.isRgb ? 0 : kind.isRgb ? 50 : 20;
        sum += source.hasAlpha && !kind.hasAlpha ? 60 : kind.hasAlpha && !source.hasAlpha ? 1 : 0;
        sum += kind.chroma < wantedChroma ? 100 * (wantedChroma - kind.chroma) : 5 * (kind.chroma - wantedChroma);
        sum += kind.depth < wantedDepth ? 200 - kind.depth : kind.depth > wantedDepth ? kind.depth : 0;
        return sum;
    };
    return *std::ranges::min_element(formats, {}, cost);
}

bool isPlainPicture(const MediaTrack &track)
{
    const PixelKind kind = pixelKind(track.pixelFormat, track.bitDepth);
    return !track.isHdr() && kind.depth <= 8 && kind.chroma == 0 && !kind.isRgb;
}

/// Of pictures that stand upright, before they are cropped.
QSize uprightSize(const MediaTrack &track)
{
    const QSize size(track.width, track.height);
    return track.rotation % 180 == 0 ? size : size.transposed();
}

int multipleBelow(double number, int multiple)
{
    // A picture that is a hair too small for rounding's sake loses no row.
    return std::max(multiple, int((number + 1e-6) / multiple) * multiple);
}

QSize limitOf(const Plan &plan, const VideoEncoder &encoder)
{
    const auto least = [](std::initializer_list<int> limits) {
        int result = 0;
        for (const int limit : limits) {
            if (limit > 0)
                result = result ? std::min(result, limit) : limit;
        }
        return result;
    };
    return {least({plan.maximumWidth, plan.preset.maximumWidth, encoder.maximumWidth}),
            least({plan.maximumHeight, plan.preset.maximumHeight, encoder.maximumHeight})};
}

/// The largest of the sizes that the source fills; the smallest where it fills none.
QSize listedSize(const VideoEncoder &encoder, const MediaTrack &track, QSizeF wanted)
{
    QSize best;
    for (const QString &word : tableWords(encoder.sizes)) {
        const QStringList sides = word.split(u'x');
        const QSize size(sides.at(0).toInt(), sides.at(1).toInt());
        if (best.isEmpty() || (size.width() <= wanted.width() && size.height() <= wanted.height()))
            best = size;
    }
    // Television's two systems differ by their pictures a second.
    if (encoder.is("dvvideo"_L1))
        best.setHeight(track.frameRate > 29 && track.frameRate < 49 ? 480 : track.frameRate > 55 ? 480 : 576);
    return best;
}

QSize resultSize(const Plan &plan, const VideoEncoder &encoder, const MediaTrack &track, bool needsSquare)
{
    QSizeF size = uprightSize(track);
    if (size.isEmpty())
        return {};
    if (!plan.crop.isEmpty())
        size = {std::round(size.width() * plan.crop.width()), std::round(size.height() * plan.crop.height())};
    if (needsSquare && track.sampleAspect > 0) {
        const double aspect = track.rotation % 180 == 0 ? track.sampleAspect : 1 / track.sampleAspect;
        (aspect < 1 ? size.rheight() : size.rwidth()) *= aspect < 1 ? 1 / aspect : aspect;
    }
    if (plan.turn == Plan::Turn::Clockwise || plan.turn == Plan::Turn::CounterClockwise)
        size.transpose();
    const QSize limit = limitOf(plan, encoder);
    double factor = 1;
    if (limit.width() > 0)
        factor = std::min(factor, limit.width() / size.width());
    if (limit.height() > 0)
        factor = std::min(factor, limit.height() / size.height());
    size *= factor;
    if (encoder.sizes)
        return listedSize(encoder, track, size);
    return {multipleBelow(size.width(), encoder.multiple), multipleBelow(size.height(), encoder.multiple)};
}

double nearestRate(const char *list, double rate)
{
    double nearest = 0;
    for (const QString &word : tableWords(list)) {
        if (const double number = rateNumber(word); nearest == 0 || std::abs(number - rate) < std::abs(nearest - rate))
            nearest = number;
    }
    return nearest;
}

bool wantsDeinterlacing(const Plan &plan, const MediaTrack &track)
{
    switch (plan.deinterlace) {
        case Plan::Deinterlace::Off:
            return false;
        case Plan::Deinterlace::Auto:
            return mayHaveFields(track);
        case Plan::Deinterlace::DoubleRate:
            return track.fieldOrder != MediaTrack::FieldOrder::Progressive;
        case Plan::Deinterlace::On:
        case Plan::Deinterlace::Film:
            break;
    }
    return true;
}

/// As often as pictures come; where those of irregular times have to come evenly, as the closest of them do.
double sourceRate(const Plan &plan, const MediaTrack &track, bool isSteady)
{
    constexpr double mostFilledUp = 60;
    if (plan.deinterlace == Plan::Deinterlace::Film)
        return 24000.0 / 1001;
    if (track.isVariableRate && isSteady && track.baseRate > 0)
        return std::min(track.baseRate, mostFilledUp);
    const bool isDoubled = plan.deinterlace == Plan::Deinterlace::DoubleRate && wantsDeinterlacing(plan, track);
    return track.frameRate * (isDoubled ? 2 : 1);
}

/// Pictures a second that have to be asked for; 0 where each picture may keep its time.
double wantedRate(const Plan &plan, const VideoEncoder &encoder, const Container &container, const MediaTrack &track)
{
    const bool isSteady = encoder.isSteady || !container.has(Container::VariableRate);
    const double source = sourceRate(plan, track, isSteady), most = plan.preset.maximumFrameRate;
    double rate = plan.frameRate;
    const bool keepsTimes = rate == 0 && track.isVariableRate && !isSteady;
    if (most > 0 && !keepsTimes && (rate > 0 ? rate > most : source > most * 1.001))
        rate = most;
    // Pictures that come twice as fast are not shown twice as often.
    if (rate == 0 && plan.speedFactor > 1 && !track.isVariableRate)
        rate = source;
    if (rate == 0 && isSteady && (track.isVariableRate || source > 120 || plan.speedFactor != 1))
        rate = nearestRate("5 10 12 15 20 24000/1001 24 25 30000/1001 30 48 50 60000/1001 60 100 120", source);
    for (const char *list : {encoder.rates, container.rates}) {
        const double asked = rate > 0 ? rate : source;
        if (!list)
            continue;
        if (const double listed = nearestRate(list, asked > 0 ? asked : 25);
            std::abs(listed - asked) > 0.002 || rate > 0)
            rate = listed;
    }
    if (encoder.is("dvvideo"_L1))
        rate = track.frameRate > 29 && track.frameRate < 49 ? 30000.0 / 1001
               : track.frameRate > 55                       ? 30000.0 / 1001
                                                            : 25;
    return rate;
}

bool fitsLimits(const Plan &plan, const MediaTrack &track)
{
    const QSize size = uprightSize(track);
    const auto fits = [](int side, int limit) { return limit == 0 || side <= limit; };
    const double most = plan.preset.maximumFrameRate;
    return fits(size.width(), plan.maximumWidth) && fits(size.height(), plan.maximumHeight) &&
           fits(size.width(), plan.preset.maximumWidth) && fits(size.height(), plan.preset.maximumHeight) &&
           (most == 0 || track.frameRate <= most * 1.001);
}

/// Whether the picture can stay as it is. A preset that keeps everything keeps fields and dynamic range as well,
/// unless they were asked to go.
bool keepsPicture(const Plan &plan, const MediaTrack &track, const Container &container, bool deinterlaces)
{
    const bool isOriginal = plan.preset.videoCodec == "copy"_L1;
    const bool keepsFields = isOriginal && plan.deinterlace != Plan::Deinterlace::DoubleRate;
    const bool isAsked = (isOriginal || plan.preset.videoCodec == track.codec) && (keepsFields || !deinterlaces);
    const bool isKept = track.isHdr() && plan.dynamicRange == Plan::HighDynamicRange::Keep;
    const bool mustBeStandard = plan.dynamicRange == Plan::HighDynamicRange::ToStandard;
    return plan.copies && isAsked && container.holdsVideo(track.codec) && !changesPictures(plan) &&
           !cutsExactly(plan) && plan.rateControl == Plan::RateControl::Preset && fitsLimits(plan, track) &&
           (track.rotation == 0 || container.has(Container::Upright)) &&
           (container.has(Container::VariableRate) || !track.isVariableRate) &&
           (isKept || ((!plan.preset.plainVideo || isPlainPicture(track)) && (!mustBeStandard || !track.isHdr())));
}

QString targetCodec(const Plan &plan, const MediaTrack &track, const Container &container,
                    const TranscodeMachine &machine)
{
    if (plan.preset.videoCodec != "copy"_L1)
        return plan.preset.videoCodec;
    const QStringList made = tableWords(container.video);
    const bool isMade = made.contains(track.codec) && videoEncoderOf(track.codec, machine.missingEncoders);
    return isMade ? track.codec : made.value(0);
}

}  // namespace

PixelKind pixelKind(const QString &format, int depth)
{
    PixelKind kind;
    kind.depth = std::max(depth, bitDepthOf(format));
    kind.chroma = format.contains("444"_L1) ? 2 : format.contains("422"_L1) ? 1 : 0;
    kind.isRgb = format.startsWith("rgb"_L1) || format.startsWith("bgr"_L1) || format.startsWith("gbr"_L1) ||
                 format.startsWith("pal"_L1) || format.startsWith("argb"_L1) || format.startsWith("abgr"_L1);
    kind.hasAlpha = format.startsWith("yuva"_L1) || format.contains("rgba"_L1) || format.contains("bgra"_L1) ||
                    format.contains("argb"_L1) || format.contains("abgr"_L1) || format.startsWith("gbrap"_L1);
    return kind;
}

bool mayHaveFields(const MediaTrack &track)
{
    const bool mayBe = track.codec == "dvvideo"_L1 && track.fieldOrder == MediaTrack::FieldOrder::Unknown;
    return track.isInterlaced() || mayBe;
}

bool changesPictures(const Plan &plan)
{
    const bool asksForFields = plan.deinterlace == Plan::Deinterlace::On || plan.deinterlace == Plan::Deinterlace::Film;
    const bool isColored = plan.brightness != 0 || plan.contrast != 1 || plan.saturation != 1;
    return asksForFields || isColored || !plan.crop.isEmpty() || plan.turn != Plan::Turn::None || plan.mirrored ||
           plan.watermark || plan.speedFactor != 1 || plan.fadeIn > 0 || plan.fadeOut > 0 || plan.frameRate > 0;
}

bool cutsExactly(const Plan &plan)
{
    return !plan.pieces.isEmpty() && plan.exactCuts;
}

std::optional<VideoTrackPlan> planVideo(const Plan &plan, const MediaTrack &track, const Container &container,
                                        const TranscodeMachine &machine, bool isBurnt)
{
    VideoTrackPlan video;
    video.source = &track;
    video.isVariableRate = track.isVariableRate;
    video.uprightSize = uprightSize(track);
    video.deinterlaces = wantsDeinterlacing(plan, track);
    if (!isBurnt && keepsPicture(plan, track, container, video.deinterlaces)) {
        video.codec = track.codec;
        video.deinterlaces = false;
        video.keepsHdr = track.isHdr();
        video.size = {track.width, track.height};
        video.pixelFormat = track.pixelFormat;
        return video;
    }

    video.codec = targetCodec(plan, track, container, machine);
    video.encoder = videoEncoderOf(video.codec, machine.missingEncoders);
    if (!video.encoder)
        return {};
    const VideoEncoder &encoder = *video.encoder;
    const bool wantsHdr = plan.dynamicRange == Plan::HighDynamicRange::Auto
                              ? !plan.preset.plainVideo
                              : plan.dynamicRange == Plan::HighDynamicRange::Keep;
    video.keepsHdr = track.isHdr() && encoder.holdsHdr && wantsHdr;
    video.mapsTones = track.isHdr() && !video.keepsHdr;
    PixelKind kind = pixelKind(track.pixelFormat, track.bitDepth);
    if (video.mapsTones)
        kind.depth = 8;
    if (video.keepsHdr)
        kind.depth = std::max(kind.depth, 10);
    const bool isPlain = video.mapsTones || (plan.preset.plainVideo && !video.keepsHdr);
    video.pixelFormat = bestFormat(encoder, track.pixelFormat, kind, isPlain);
    const bool needsSquare = encoder.is("gif"_L1) || encoder.is("apng"_L1);
    video.size = resultSize(plan, encoder, track, needsSquare);
    if (encoder.is("dvvideo"_L1))
        video.pixelFormat = video.size.height() == 480 ? u"yuv411p"_s : u"yuv420p"_s;
    video.frameRate = wantedRate(plan, encoder, container, track);
    if (track.isVariableRate && video.frameRate == 0)
        video.mostRate = plan.preset.maximumFrameRate;
    const QString device = encoder.is("libx264"_L1) ? machine.hardwareDevice : machine.hevcDevice;
    const bool isRateFree =
        plan.rateControl == Plan::RateControl::Preset || plan.rateControl == Plan::RateControl::BitRate;
    video.isHardware = plan.hardware && encoder.hardware && !device.isEmpty() && isRateFree &&
                       video.pixelFormat == "yuv420p"_L1 && !plan.preset.quality;
    return video;
}

}  // namespace kestrel
