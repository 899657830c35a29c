#include "TrackPlan.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;
using Refused = foundation::Failure<tarnwell::Sentence>;
using tarnwell::operator""_key;

/// The sound tracks that the user wants, in the file's order.
QList<const MediaTrack *> wantedSounds(const Plan &plan, const MediaInformation &source)
{
    QList<const MediaTrack *> tracks, inLanguages;
    for (const MediaTrack &track : source.tracks) {
        const bool isNamed = !plan.audioTracks || plan.audioTracks->contains(track.index);
        if (track.kind != Kind::Audio || !isNamed)
            continue;
        tracks.append(&track);
        if (isInLanguages(track, plan.soundLanguages))
            inLanguages.append(&track);
    }
    return plan.audioTracks || inLanguages.isEmpty() ? tracks : inLanguages;
}

void planSoundTracks(TrackPlan &tracks, const Plan &plan, const MediaInformation &source,
                     const TranscodeMachine &machine)
{
    QList<const MediaTrack *> wanted = wantedSounds(plan, source);
    if (wanted.size() > 1 && !tracks.container->has(Container::ManySounds)) {
        const auto isDefault = [](const MediaTrack *track) { return track->isDefault; };
        const auto found = std::ranges::find_if(wanted, isDefault);
        const MediaTrack *kept = found == wanted.end() ? wanted.first() : *found;
        for (const MediaTrack *track : wanted) {
            if (track != kept)
                tracks.leftOut.append({"Sound: %1. %2 holds only one track of sound."_key,
                                       {trackName(*track, machine), QString::fromLatin1(tracks.container->name)}});
        }
        wanted = {kept};
    }
    tracks.sounds = planSounds(plan, wanted, *tracks.container, machine);
}

bool burns(const Plan &plan)
{
    const auto isBurnt = [](const Plan::ExternalSubtitle &file) { return file.use == Plan::SubtitleUse::Burn; };
    return plan.subtitles.values().contains(Plan::SubtitleUse::Burn) ||
           std::ranges::any_of(plan.externalSubtitles, isBurnt);
}

/// Where one of several files has high dynamic range, all become standard; where one has fields, all are
/// looked at.
std::optional<VideoTrackPlan> planJoinedVideo(const Plan &plan, const QList<MediaInformation> &sources,
                                              const Container &container, const TranscodeMachine &machine)
{
    const auto hasHdr = [](const MediaInformation &source) { return source.firstOf(Kind::Video)->isHdr(); };
    const auto hasFields = [](const MediaInformation &source) { return source.firstOf(Kind::Video)->isInterlaced(); };
    const bool isMixed = std::ranges::any_of(sources, hasHdr) && !std::ranges::all_of(sources, hasHdr);
    Plan common = plan;
    if (isMixed) {
        common.copies = false;
        common.dynamicRange = Plan::HighDynamicRange::ToStandard;
    }
    auto video = planVideo(common, *sources.first().firstOf(Kind::Video), container, machine, burns(plan));
    if (!video || !video->encoder)
        return video;
    video->mapsTones = video->mapsTones || isMixed;
    video->deinterlaces =
        video->deinterlaces || (plan.deinterlace == Plan::Deinterlace::Auto && std::ranges::any_of(sources, hasFields));
    return video;
}

std::optional<tarnwell::Sentence> refusal(const Plan &plan, const QList<MediaInformation> &sources)
{
    if (sources.isEmpty() || sources.size() != plan.sources.size())
        return tarnwell::Sentence("There is nothing to convert."_key);
    if (sources.size() > 1 && !plan.pieces.isEmpty())
        return tarnwell::Sentence("Files can be cut or joined, but not both at once."_key);
    const bool hasSound = std::ranges::all_of(sources, &MediaInformation::hasAudio);
    const bool hasVideo = std::ranges::all_of(sources, &MediaInformation::hasVideo);
    if (!plan.preset.takesVideo() && !hasSound)
        return tarnwell::Sentence("This file has no sound to convert."_key);
    if (!plan.preset.takesAudio() && !hasVideo)
        return tarnwell::Sentence("This file has no picture to convert."_key);
    if (!hasVideo && !hasSound)
        return sources.size() > 1
                   ? tarnwell::Sentence("Only files that all have a picture, or all have sound, can be joined."_key)
                   : tarnwell::Sentence("This file has neither picture nor sound to convert."_key);
    if (sourcePieces(plan, sources).isEmpty())
        return tarnwell::Sentence("The pieces to be kept lie behind the end of the file."_key);
    return {};
}

}  // namespace

bool TrackPlan::copiesAll() const
{
    const auto isCopied = [](const SoundTrackPlan &sound) { return !sound.encoder; };
    return (!video || !video->encoder) && std::ranges::all_of(sounds, isCopied);
}

bool TrackPlan::copiesAny() const
{
    const auto isCopied = [](const SoundTrackPlan &sound) { return !sound.encoder; };
    return (video && !video->encoder) || std::ranges::any_of(sounds, isCopied);
}

QList<SourcePiece> sourcePieces(const Plan &plan, const QList<MediaInformation> &sources)
{
    QList<SourcePiece> pieces;
    if (plan.pieces.isEmpty() || sources.size() > 1) {
        for (int index = 0; index < sources.size(); ++index)
            pieces.append({.source = index, .start = {}, .end = {}, .seconds = sources.at(index).duration});
        return pieces;
    }
    const std::optional<double> duration = sources.first().duration;
    for (const Plan::Piece &piece : plan.pieces) {
        const double end = duration ? std::min(piece.end, *duration) : piece.end;
        if (end > piece.start)
            pieces.append({.source = 0, .start = piece.start, .end = end, .seconds = end - piece.start});
    }
    return pieces;
}

std::optional<double> secondsOf(const QList<SourcePiece> &pieces)
{
    double seconds = 0;
    for (const SourcePiece &piece : pieces) {
        if (!piece.seconds)
            return {};
        seconds += *piece.seconds;
    }
    return seconds;
}

QList<int> wantedSoundIndexes(const Plan &plan, const MediaInformation &source)
{
    QList<int> indexes;
    for (const MediaTrack *track : wantedSounds(plan, source))
        indexes.append(track->index);
    return indexes;
}

foundation::Result<TrackPlan, tarnwell::Sentence> planTracks(const Plan &plan, const QList<MediaInformation> &sources,
                                                             const TranscodeMachine &machine)
{
    if (const auto reason = refusal(plan, sources))
        return Refused{*reason};
    TrackPlan tracks;
    tracks.container = containerOf(plan.preset);
    if (!tracks.container)
        return Refused{{"Kestrel does not know the kind of file “%1” of this preset."_key, {plan.preset.container}}};

    const MediaInformation &first = sources.first();
    const bool hasVideo = std::ranges::all_of(sources, &MediaInformation::hasVideo);
    const bool hasSound = std::ranges::all_of(sources, &MediaInformation::hasAudio);
    if (plan.preset.takesVideo() && hasVideo) {
        tracks.video = planJoinedVideo(plan, sources, *tracks.container, machine);
        if (!tracks.video)
            return Refused{{"The encoder for %1 is not installed."_key, {codecLabel(plan.preset.videoCodec)}}};
        if (first.tracksOf(Kind::Video).size() > 1)
            tracks.leftOut.append(
                tarnwell::Sentence("Further pictures beside the first (other angles or previews)."_key));
    }
    if (plan.preset.takesAudio() && hasSound) {
        planSoundTracks(tracks, plan, first, machine);
        if (tracks.sounds.isEmpty() && !wantedSounds(plan, first).isEmpty())
            return Refused{{"The encoder for %1 is not installed."_key, {codecLabel(plan.preset.audioCodec)}}};
    } else if (hasSound) {
        tracks.leftOut.append(
            {"The sound. %1 holds only pictures."_key, {QString::fromLatin1(tracks.container->name)}});
    }
    if (!tracks.video && tracks.sounds.isEmpty())
        return Refused{{"Nothing of this file would be kept."_key}};
    planCompanions(tracks, plan, first, machine);
    tellLosses(tracks, plan, first, machine);
    return tracks;
}

}  // namespace kestrel
