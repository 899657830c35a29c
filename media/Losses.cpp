// Names what the plan loses of a source beside whole tracks.
#include "SubtitleFile.h"
#include "TrackPlan.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;
using tarnwell::operator""_key;

void tellPictureLosses(const VideoTrackPlan &video, const Plan &plan, QList<tarnwell::Sentence> &leftOut)
{
    if (!video.encoder)
        return;
    const MediaTrack &source = *video.source;
    const PixelKind had = pixelKind(source.pixelFormat, source.bitDepth), has = pixelKind(video.pixelFormat, 8);
    // Few players show colours of red, green and blue anyway.
    const bool isCoarser = has.depth < had.depth || (has.chroma < had.chroma && !had.isRgb && !has.isRgb);
    if (video.mapsTones) {
        leftOut.append(tarnwell::Sentence("High dynamic range becomes standard range."_key));
    } else if (isCoarser) {
        const auto name = [](const PixelKind &kind) {
            return kind.isRgb ? u"RGB"_s : kind.chroma == 2 ? u"4:4:4"_s : kind.chroma == 1 ? u"4:2:2"_s : u"4:2:0"_s;
        };
        leftOut.append({"The finer picture. %1 bit %2 becomes %3 bit %4."_key,
                        {QString::number(had.depth), name(had), QString::number(has.depth), name(has)}});
    }
    // The reader of GIF gives every picture some.
    if (had.hasAlpha && !has.hasAlpha && video.pixelFormat != "pal8"_L1 && source.codec != "gif"_L1)
        leftOut.append({"The transparency of the picture. %1 cannot hold it."_key, {codecLabel(video.codec)}});
    if (source.isVariableRate && video.frameRate > 0 && plan.frameRate == 0)
        leftOut.append({"The irregular times of the pictures. They come evenly, %1 a second."_key,
                        {QString::number(video.frameRate, 'g', 5)}});
    const bool isMastered = !source.masteringDisplay.isEmpty() || !source.lightLevel.isEmpty();
    if (video.keepsHdr && isMastered && !video.encoder->writesMastering)
        leftOut.append(
            {"The mastering data of the high dynamic range. %1 cannot hold them."_key, {codecLabel(video.codec)}});
}

void tellTagLosses(const Container &container, const QHash<QString, QString> &tags, QList<tarnwell::Sentence> &leftOut)
{
    struct Loss {
        QLatin1StringView word;
        const char *tags;
        tarnwell::TextKey key;
    };
    constexpr tarnwell::TextKey place = "The place of recording. %1 cannot hold it."_key;
    static constexpr Loss losses[] = {
        {"title"_L1, "title", "The title. %1 cannot hold it."_key},
        {"title"_L1, "artist album", "Artist and album. %1 cannot hold them."_key},
        {"date"_L1, "creation_time com.apple.quicktime.creationdate", "The date of recording. %1 cannot hold it."_key},
        {"place"_L1, "location com.apple.quicktime.location.iso6709", place},
    };
    const QStringList lost = tableWords(container.lostTags);
    for (const Loss &loss : losses) {
        const QStringList names = tableWords(loss.tags);
        if (lost.contains(loss.word) &&
            std::ranges::any_of(names, [&](const auto &name) { return tags.contains(name); }))
            leftOut.append({loss.key, {QString::fromLatin1(container.name)}});
    }
}

void tellSoundLosses(TrackPlan &tracks, const Plan &plan, const TranscodeMachine &machine)
{
    const Container &container = *tracks.container;
    for (const SoundTrackPlan &sound : std::as_const(tracks.sounds)) {
        const MediaTrack &source = *sound.source;
        const QString name = trackName(source, machine);
        if (sound.channels < source.channels && plan.mix == Plan::SoundMix::AsSource)
            tracks.leftOut.append({"Channels of the sound: %1. %2 become %3."_key,
                                   {name, QString::number(source.channels), QString::number(sound.channels)}});
        if (!isLosslessSound(source.codec))
            continue;
        if (source.bitDepth > 16 && sound.codec.startsWith("pcm_s16"_L1))
            tracks.leftOut.append(
                {"The finer sound: %1. %2 bit become %3 bit."_key, {name, QString::number(source.bitDepth), u"16"_s}});
        if (!isLosslessSound(sound.codec) && plan.preset.audioCodec == "copy"_L1)
            tracks.leftOut.append({"Lossless sound: %1. It becomes %2."_key, {name, codecLabel(sound.codec)}});
    }
    const auto hasLanguage = [](const SoundTrackPlan &sound) { return !sound.source->language.isEmpty(); };
    const bool lacksLanguages = container.has(Container::ManySounds) && !container.has(Container::TrackNames);
    if (lacksLanguages && std::ranges::any_of(tracks.sounds, hasLanguage))
        tracks.leftOut.append(
            {"The languages of the tracks. %1 cannot hold them."_key, {QString::fromLatin1(container.name)}});
}

void tellSubtitleLosses(TrackPlan &tracks, const Plan &plan, const TranscodeMachine &machine)
{
    for (const SubtitleTrackPlan &subtitle : std::as_const(tracks.subtitles)) {
        const QString path = subtitle.source ? QString() : plan.externalSubtitles.at(subtitle.file).path;
        const QString codec =
            subtitle.source ? subtitle.source->codec : QString::fromLatin1(subtitleKindOf(path).codec);
        if (subtitle.encoder != "copy"_L1 && (codec == "ass"_L1 || codec == "ssa"_L1))
            tracks.leftOut.append({"Places and styles of the subtitles: %1. %2 cannot hold them."_key,
                                   {subtitle.source ? trackName(*subtitle.source, machine) : path.section(u'/', -1),
                                    QString::fromLatin1(tracks.container->name)}});
    }
}

}  // namespace

void tellLosses(TrackPlan &tracks, const Plan &plan, const MediaInformation &source, const TranscodeMachine &machine)
{
    if (tracks.video)
        tellPictureLosses(*tracks.video, plan, tracks.leftOut);
    tellSoundLosses(tracks, plan, machine);
    tellSubtitleLosses(tracks, plan, machine);
    if (!tracks.covers.isEmpty() && source.tracksOf(Kind::Cover).size() > 1)
        tracks.leftOut.append(tarnwell::Sentence("Further cover pictures beside the first."_key));
    tellTagLosses(*tracks.container, source.tags, tracks.leftOut);
}

}  // namespace kestrel
