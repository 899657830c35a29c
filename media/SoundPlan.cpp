#include "TrackPlan.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;

int channelsOf(const QString &layout)
{
    struct Layout {
        const char *name;
        int channels;
    };
    static constexpr Layout layouts[] = {{"mono", 1},      {"stereo", 2}, {"3.0", 3},      {"quad", 4},
                                         {"4.0", 4},       {"5.0", 5},    {"5.1", 6},      {"6.1", 7},
                                         {"6.1(back)", 7}, {"7.1", 8},    {"7.1(wide)", 8}};
    for (const Layout &row : layouts) {
        if (layout == QLatin1StringView(row.name))
            return row.channels;
    }
    return 0;
}

int mostChannels(const Plan &plan, const Container &container)
{
    int most = 8;
    const auto limit = [&](int channels) { most = channels > 0 ? std::min(most, channels) : most; };
    limit(plan.preset.audioChannels);
    limit(container.channels);
    limit(plan.mix == Plan::SoundMix::Mono         ? 1
          : plan.mix == Plan::SoundMix::Stereo     ? 2
          : plan.mix == Plan::SoundMix::Surround51 ? 6
                                                   : 0);
    return most;
}

/// The encoder's layout with as many channels as wanted, else the next that is larger, else its largest.
QString layoutFor(const SoundEncoder &encoder, int channels, int most)
{
    QString best;
    for (const QString &layout : tableWords(encoder.layouts)) {
        if (channelsOf(layout) > most)
            break;
        best = layout;
        if (channelsOf(layout) >= channels)
            break;
    }
    return best;
}

/// Surround takes less for each channel: one of them is the bass alone.
qint64 bitRateFor(const Plan &plan, const SoundEncoder &encoder, int channels)
{
    const bool isQuality = encoder.usualQuality && plan.rateControl != Plan::RateControl::Size;
    qint64 kilobits = plan.audioBitRate / 1000;
    if (kilobits == 0 && !isQuality)
        kilobits = (plan.best ? encoder.best : encoder.usual) * channels * (channels > 2 ? 0.8 : 1);
    if (kilobits == 0 || encoder.usual == 0)
        return 0;
    if (encoder.most > 0)
        kilobits = std::min<qint64>(kilobits, encoder.most);
    if (encoder.bitRates) {
        qint64 listed = 0;
        for (const QString &word : tableWords(encoder.bitRates)) {
            listed = word.toLongLong();
            if (listed >= kilobits)
                break;
        }
        kilobits = listed;
    }
    return kilobits * 1000;
}

int sampleRateFor(const Plan &plan, const SoundEncoder &encoder, const Container &container, int source)
{
    if (container.sampleRate > 0)
        return container.sampleRate == source ? 0 : container.sampleRate;
    int rate = source;
    // The filter that evens out works at four times that.
    if (plan.normalizes)
        rate = source > 0 && source < 48000 ? source : 48000;
    if (encoder.sampleRates) {
        int listed = 0;
        for (const QString &word : tableWords(encoder.sampleRates)) {
            listed = word.toInt();
            if (listed >= rate)
                break;
        }
        rate = listed;
    }
    return rate == source && !plan.normalizes ? 0 : rate;
}

/// Where a preset keeps everything, and the container cannot: what loses nothing stays so where it can.
QString nearestCodec(const MediaTrack &track, const Container &container)
{
    if (container.holdsSound(track.codec) && soundEncoderOf(track.codec))
        return track.codec;
    const QString usual = tableWords(container.sound).value(0);
    if (isLosslessSound(track.codec) && !isLosslessSound(usual)) {
        for (const QString &codec : tableWords("flac alac wavpack pcm_s16le")) {
            if (container.holdsSound(codec))
                return codec;
        }
    }
    return usual;
}

/// The preset's codec, or its sister that holds samples as deep as the source has them.
QString soundCodecFor(const Plan &plan, const MediaTrack &track, const Container &container)
{
    const QString asked = plan.preset.audioCodec == "copy"_L1 ? nearestCodec(track, container) : plan.preset.audioCodec;
    QString deeper = asked;
    deeper.replace("pcm_s16"_L1, "pcm_s24"_L1);
    // Discs do not tell how deep theirs are.
    const bool isDeep = track.bitDepth > 16 || (track.bitDepth == 0 && isLosslessSound(track.codec));
    return isDeep && container.holdsSound(deeper) ? deeper : asked;
}

bool keepsSound(const Plan &plan, const MediaTrack &track, const Container &container)
{
    const bool isAsked = plan.preset.audioCodec == "copy"_L1 || soundCodecFor(plan, track, container) == track.codec;
    const bool isKnownSize = plan.rateControl != Plan::RateControl::Size || track.bitRate > 0;
    return plan.copies && isAsked && isKnownSize && container.holdsSound(track.codec) && !changesSound(plan) &&
           !cutsExactly(plan) && plan.audioBitRate == 0 &&
           (track.channels == 0 || track.channels <= mostChannels(plan, container)) &&
           (track.channels == 2 || !container.has(Container::StereoOnly)) &&
           (container.sampleRate == 0 || track.sampleRate == container.sampleRate);
}

std::optional<SoundTrackPlan> planSound(const Plan &plan, const MediaTrack &track, const Container &container,
                                        const TranscodeMachine &machine)
{
    SoundTrackPlan sound;
    sound.source = &track;
    sound.channels = track.channels;
    if (keepsSound(plan, track, container)) {
        sound.codec = track.codec;
        sound.bitRate = track.bitRate;
        return sound;
    }
    sound.codec = soundCodecFor(plan, track, container);
    sound.encoder = soundEncoderOf(sound.codec, machine.missingEncoders);
    if (!sound.encoder)
        return {};
    const int most = mostChannels(plan, container);
    const bool isUsual = track.channels == 0 || container.has(Container::StereoOnly);
    const int wanted = std::min(isUsual ? 2 : track.channels, most);
    const QString layout = layoutFor(*sound.encoder, wanted, most);
    sound.channels = channelsOf(layout);
    if (layout != track.channelLayout)
        sound.layout = layout;
    sound.bitRate = bitRateFor(plan, *sound.encoder, sound.channels);
    sound.sampleRate = sampleRateFor(plan, *sound.encoder, container, track.sampleRate);
    return sound;
}

}  // namespace

bool isLosslessSound(const QString &codec)
{
    const bool isSamples = codec.startsWith("pcm_"_L1) && !codec.endsWith("law"_L1);
    return isSamples || tableWords("flac alac tta ape wavpack truehd mlp").contains(codec);
}

bool changesSound(const Plan &plan)
{
    return plan.normalizes || plan.volume != 0 || plan.speedFactor != 1 || plan.fadeIn > 0 || plan.fadeOut > 0;
}

QList<SoundTrackPlan> planSounds(const Plan &plan, const QList<const MediaTrack *> &tracks, const Container &container,
                                 const TranscodeMachine &machine)
{
    QList<SoundTrackPlan> sounds;
    for (const MediaTrack *track : tracks) {
        if (const auto sound = planSound(plan, *track, container, machine))
            sounds.append(*sound);
    }
    return sounds;
}

}  // namespace kestrel
