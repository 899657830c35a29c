#include "RateControl.h"

#include "FilterText.h"

#include "tarnwell/SystemInformation.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Refused = foundation::Failure<tarnwell::Sentence>;
using tarnwell::operator""_key;

// With less than this part of their usual bits all encoders show blocks, and some give up.
constexpr double fewestOfUsualBits = 0.27;
constexpr int smallestHeight = 120;
// The encoders miss their rate by a few parts in a hundred, and the container adds its own.
constexpr double aim = 0.97;
constexpr double bytesPerPacket = 14;

double picturesPerSecond(const VideoTrackPlan &video)
{
    if (video.frameRate > 0)
        return video.frameRate;
    const double rate = video.source->frameRate > 0 ? video.source->frameRate : 25;
    return video.mostRate > 0 ? std::min(rate, video.mostRate) : rate;
}

/// Sound may take a quarter of everything; less than this a channel is not worth hearing.
void fitSounds(const Plan &plan, TrackPlan &tracks, double bitsPerSecond)
{
    constexpr qint64 fewest = 24'000;
    const double share = tracks.video ? 0.25 : aim;
    for (SoundTrackPlan &sound : tracks.sounds) {
        const qint64 most = qint64(bitsPerSecond * share / double(tracks.sounds.size()));
        const bool isFree = sound.encoder && sound.encoder->usual > 0 && plan.audioBitRate == 0;
        if (!isFree || (tracks.video && sound.bitRate <= most))
            continue;
        qint64 rate = std::max(tracks.video ? fewest * std::max(1, sound.channels) : fewest, most);
        if (!tracks.video)
            rate = std::min<qint64>(rate, sound.encoder->best * 1000LL * std::max(1, sound.channels));
        if (sound.encoder->bitRates) {
            qint64 listed = 0;
            for (const QString &word : tableWords(sound.encoder->bitRates)) {
                if (listed == 0 || word.toLongLong() * 1000 <= rate)
                    listed = word.toLongLong() * 1000;
            }
            rate = listed;
        }
        sound.bitRate = rate;
    }
}

qint64 soundBits(const TrackPlan &tracks)
{
    qint64 bits = 0;
    for (const SoundTrackPlan &sound : tracks.sounds)
        bits += sound.bitRate;
    return bits;
}

/// Smaller by the same part on both sides, so that each sample has bits enough.
bool shrinkToFit(VideoTrackPlan &video, double bitsPerSecond)
{
    const double pixels = double(video.size.width()) * video.size.height();
    const double bits = bitsPerSecond / (pixels * picturesPerSecond(video));
    const double fewestBits = video.encoder->bitsPerPixel * fewestOfUsualBits;
    if (video.size.isEmpty() || bits >= fewestBits)
        return bitsPerSecond > 0;
    const double factor = std::sqrt(bits / fewestBits);
    const int multiple = std::max(2, video.encoder->multiple);
    const auto side = [&](int length) { return std::max(multiple, int(length * factor / multiple) * multiple); };
    const QSize smaller(side(video.size.width()), side(video.size.height()));
    if (std::min(smaller.width(), smaller.height()) <
            std::min(smallestHeight, std::min(video.size.width(), video.size.height())) ||
        video.encoder->sizes)
        return false;
    video.size = smaller;
    return true;
}

double qualityValue(const Plan &plan, const VideoEncoder &encoder)
{
    const auto [lowest, highest] = std::minmax(encoder.finest, encoder.least);
    double value = plan.preset.quality > 0 ? plan.preset.quality : encoder.usual;
    if (plan.best)
        value = plan.preset.bestQuality > 0 ? plan.preset.bestQuality : value + encoder.best - encoder.usual;
    if (plan.rateControl == Plan::RateControl::Quality && plan.quality > 0)
        value = encoder.finest < encoder.least ? plan.quality : encoder.finest + encoder.least - plan.quality;
    return std::clamp(value, lowest, highest);
}

QStringList qualityArguments(const Plan &plan, const VideoEncoder &encoder)
{
    if (!encoder.quality)
        return {};
    QStringList arguments{QString::fromLatin1(encoder.quality), numberText(qualityValue(plan, encoder))};
    // Constant quality needs a rate of 0; VP8 has no such value and gets one too high to matter.
    if (encoder.is("libvpx-vp9"_L1) || encoder.is("libaom-av1"_L1))
        arguments << u"-b:v"_s << u"0"_s;
    else if (encoder.is("libvpx"_L1))
        arguments << u"-b:v"_s << u"20M"_s;
    return arguments;
}

/// "G(x,y)B(x,y)R(x,y)WP(x,y)L(most,least)" in whole units, as one encoder takes it, in fractions for another.
QString displayInFractions(const QString &display)
{
    QString result, number;
    bool isLight = false;
    for (const QChar letter : display) {
        if (letter.isDigit()) {
            number += letter;
            continue;
        }
        if (!number.isEmpty())
            result += QString::number(number.toDouble() / (isLight ? 10000 : 50000), 'f', 4);
        number.clear();
        if (letter == u'L')
            isLight = true;
        result += letter;
    }
    return result;
}

QStringList x265Parameters(const Plan &plan, const VideoTrackPlan &video, int pass, const QString &log)
{
    QStringList parameters;
    const MediaTrack &source = *video.source;
    if (video.keepsHdr) {
        if (source.colorTransfer == "smpte2084"_L1)
            parameters << u"hdr10=1"_s;
        parameters << u"repeat-headers=1"_s;
        if (!source.masteringDisplay.isEmpty())
            parameters << u"master-display="_s + source.masteringDisplay;
        if (!source.lightLevel.isEmpty())
            parameters << u"max-cll="_s + source.lightLevel;
    }
    if (plan.threads > 0)
        parameters << u"pools=%1"_s.arg(plan.threads) << u"frame-threads=1"_s;
    if (pass > 0) {
        QString path = log;
        for (const QString &letter : {u"\\"_s, u":"_s, u"="_s, u"'"_s})
            path.replace(letter, u'\\' + letter);
        parameters << u"pass=%1"_s.arg(pass) << u"stats="_s + path;
    }
    return parameters;
}

/// What an encoder needs to know that stands in no table.
QStringList ownArguments(const Plan &plan, const VideoTrackPlan &video, int pass, const QString &log)
{
    const QLatin1StringView encoder(video.encoder->encoder);
    QStringList arguments;
    if (encoder == "libx265"_L1) {
        const QStringList parameters = x265Parameters(plan, video, pass, log);
        if (!parameters.isEmpty())
            arguments << u"-x265-params"_s << parameters.join(u':');
    } else if (encoder == "libsvtav1"_L1) {
        QStringList parameters;
        if (video.keepsHdr && !video.source->masteringDisplay.isEmpty())
            parameters << u"mastering-display="_s + displayInFractions(video.source->masteringDisplay);
        if (video.keepsHdr && !video.source->lightLevel.isEmpty())
            parameters << u"content-light="_s + video.source->lightLevel;
        if (plan.threads > 0)
            parameters << u"lp=%1"_s.arg(plan.threads);
        if (!parameters.isEmpty())
            arguments << u"-svtav1-params"_s << parameters.join(u':');
    } else if (encoder == "prores_ks"_L1) {
        arguments << u"-profile:v"_s << (video.pixelFormat.contains("444"_L1) ? u"4"_s : plan.best ? u"3"_s : u"2"_s);
    } else if (encoder == "dnxhd"_L1) {
        arguments << u"-profile:v"_s
                  << (video.pixelFormat == "yuv422p10le"_L1 ? u"dnxhr_hqx"_s
                      : plan.best                           ? u"dnxhr_hq"_s
                                                            : u"dnxhr_sq"_s);
    }
    const bool keepsFields = video.source->isInterlaced() && !video.deinterlaces;
    if (keepsFields && (encoder == "libx264"_L1 || encoder == "mpeg2video"_L1 || encoder == "mpeg4"_L1))
        arguments << u"-flags:v"_s << u"+ilme+ildct"_s << u"-top"_s
                  << (video.source->fieldOrder == MediaTrack::FieldOrder::BottomFirst ? u"0"_s : u"1"_s);
    return arguments;
}

}  // namespace

foundation::Result<RateTarget, tarnwell::Sentence> planRates(const Plan &plan, TrackPlan &tracks,
                                                             std::optional<double> seconds)
{
    RateTarget target;
    const bool hasEncoder = tracks.video && tracks.video->encoder;
    if (plan.rateControl == Plan::RateControl::BitRate && hasEncoder && tracks.video->encoder->quality)
        target.bitRate = plan.videoBitRate;
    if (plan.rateControl != Plan::RateControl::Size || plan.maximumBytes <= 0)
        return target;

    if (!seconds || *seconds <= 0)
        return Refused{{"Kestrel does not know how long this file is, and cannot aim at a size."_key}};
    const double bitsPerSecond = double(plan.maximumBytes) * 8 / *seconds;
    fitSounds(plan, tracks, bitsPerSecond);
    const tarnwell::Sentence tooLarge(
        "%1 MB are too few for a file of this length."_key,
        {QString::number(double(plan.maximumBytes) / 1e6, 'f', plan.maximumBytes < 10'000'000 ? 1 : 0)});
    const bool isMadeSmaller = hasEncoder ? tracks.video->encoder->twoPasses || tracks.video->encoder->quality
                                          : !tracks.video && !tracks.sounds.isEmpty() && soundBits(tracks) > 0;
    if (!isMadeSmaller)
        return Refused{{"What this preset makes cannot be fitted to a size."_key}};
    if (!tracks.video)
        return double(soundBits(tracks)) <= bitsPerSecond ? foundation::Result<RateTarget, tarnwell::Sentence>(target)
                                                          : Refused{tooLarge};

    double packets = picturesPerSecond(*tracks.video);
    for (const SoundTrackPlan &sound : tracks.sounds)
        packets += (sound.source->sampleRate > 0 ? sound.source->sampleRate : 48000) / 1024.0;
    const double rest = bitsPerSecond * aim - double(soundBits(tracks)) - packets * bytesPerPacket * 8;
    if (!shrinkToFit(*tracks.video, rest))
        return Refused{tooLarge};
    target.bitRate = qint64(rest);
    target.hasTwoPasses = tracks.video->encoder->twoPasses;
    return target;
}

QStringList videoArguments(const Plan &plan, const VideoTrackPlan &video, const RateTarget &rate, int pass,
                           const QString &log)
{
    if (!video.encoder)
        return {u"-c:v:0"_s, u"copy"_s};
    const VideoEncoder &encoder = *video.encoder;
    if (video.isHardware) {
        QStringList arguments{u"-c:v:0"_s, QString::fromLatin1(encoder.hardware)};
        if (rate.bitRate > 0)
            arguments << u"-b:v"_s << QString::number(rate.bitRate);
        else
            arguments += tableWords(plan.best ? tarnwell::hardwareEncoderArguments.best
                                              : tarnwell::hardwareEncoderArguments.quality);
        return arguments;
    }
    QStringList arguments{u"-c:v:0"_s, QString::fromLatin1(encoder.encoder)};
    arguments += tableWords(encoder.arguments);
    // Better settings take a step more time.
    QStringList speed = tableWords(encoder.speeds[std::clamp(2 + plan.speed - (plan.best ? 1 : 0), 0, 4)]);
    if (pass > 0)  // what is made for live pictures takes no second look
        speed.replaceInStrings(u"realtime"_s, u"good"_s);
    arguments += speed;
    if (rate.bitRate > 0)
        arguments << u"-b:v"_s << QString::number(rate.bitRate);
    else
        arguments += qualityArguments(plan, encoder);
    if (plan.rateControl == Plan::RateControl::Size && rate.bitRate > 0)
        arguments << u"-maxrate"_s << QString::number(rate.bitRate * 2) << u"-bufsize"_s
                  << QString::number(rate.bitRate * 4);
    arguments += ownArguments(plan, video, pass, log);
    if (pass > 0)
        arguments << u"-pass"_s << QString::number(pass) << u"-passlogfile"_s << log;
    return arguments;
}

qint64 expectedSize(const Plan &plan, const TrackPlan &tracks, const RateTarget &rate,
                    const QList<MediaInformation> &sources, std::optional<double> seconds)
{
    if (plan.rateControl == Plan::RateControl::Size && plan.maximumBytes > 0)
        return plan.maximumBytes;
    double whole = 0, known = 0, bytes = 0;
    for (const MediaInformation &source : sources) {
        known += source.duration.value_or(0);
        whole += double(source.bytes);
    }
    if (!seconds)
        return tracks.copiesAll() ? qint64(whole * 1.02) : 0;
    const double part = known > 0 ? std::min(1.0, *seconds / known) : 1;
    double sourceSound = 0;
    for (const SoundTrackPlan &sound : tracks.sounds) {
        const double lossless = std::max(16, sound.source->bitDepth);
        const double samples =
            (sound.source->sampleRate > 0 ? sound.source->sampleRate : 48000) * std::max(1, sound.channels);
        const bool isQuality = sound.encoder && sound.encoder->usualQuality;
        const double bits = sound.bitRate > 0 ? double(sound.bitRate)
                            : isQuality       ? 160e3 * std::max(1, sound.channels) / 2
                                              : samples * lossless;
        bytes += bits / 8 * *seconds;
        sourceSound += double(sound.source->bitRate) / 8 * known;
    }
    if (tracks.video && !tracks.video->encoder) {
        bytes += std::max(0.0, whole - sourceSound) * part;
    } else if (tracks.video) {
        const double pixels = tracks.video->size.isEmpty()
                                  ? 1920.0 * 1080
                                  : double(tracks.video->size.width()) * tracks.video->size.height();
        constexpr double caution = 1.5;
        const double bits = rate.bitRate > 0 ? double(rate.bitRate)
                                             : tracks.video->encoder->bitsPerPixel * pixels *
                                                   picturesPerSecond(*tracks.video) * caution;
        bytes += bits / 8 * *seconds;
    }
    return qint64(bytes * 1.02) + 65536;
}

}  // namespace kestrel
