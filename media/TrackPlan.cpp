#include "TrackPlan.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;
using Refused = foundation::Failure<tarnwell::Sentence>;
using tarnwell::operator""_key;

/// The sound tracks that the user wants, in the file's order, of those that can be read at all.
QList<const MediaTrack *> wantedSounds(const Plan &plan, const MediaInformation &source)
{
    QList<const MediaTrack *> tracks, inLanguages;
    for (const MediaTrack &track : source.tracks) {
        const bool isNamed = !plan.audioTracks || plan.audioTracks->contains(track.index);
        if (track.kind != Kind::Audio || !isNamed || track.codec.isEmpty())
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
    for (const MediaTrack &track : source.tracks) {
        const bool isNamed = !plan.audioTracks || plan.audioTracks->contains(track.index);
        if (track.kind == Kind::Audio && track.codec.isEmpty() && isNamed)
            tracks.leftOut.append({"Sound: %1. Its format is not known."_key, {trackName(track, machine)}});
    }
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

/// Those of a joined file that may stand behind the leader's: tracks that are named there are named by their place.
QList<const MediaTrack *> soundsToJoin(const Plan &plan, const MediaInformation &leader, const MediaInformation &source)
{
    if (!plan.audioTracks)
        return wantedSounds(plan, source);
    Plan all = plan;
    all.audioTracks.reset();
    all.soundLanguages.clear();
    const QList<const MediaTrack *> places = wantedSounds(all, leader);
    QList<const MediaTrack *> tracks = wantedSounds(all, source).mid(0, places.size());
    const auto isNamed = [&](const MediaTrack *track) {
        return plan.audioTracks->contains(places.at(tracks.indexOf(track))->index);
    };
    QList<const MediaTrack *> named;
    std::ranges::copy_if(tracks, std::back_inserter(named), isNamed);
    return named;
}

/// Finds each track of the result in each file, of the same language before others, none of them twice.
void joinSounds(TrackPlan &tracks, const Plan &plan, const QList<MediaInformation> &sources, qsizetype leader,
                const TranscodeMachine &machine)
{
    for (qsizetype number = 0; number < sources.size(); ++number) {
        QList<const MediaTrack *> left = soundsToJoin(plan, sources.at(leader), sources.at(number));
        for (SoundTrackPlan &sound : tracks.sounds)
            sound.joined.append(number == leader ? sound.source->index : -1);
        if (number == leader)
            continue;
        for (const bool needsLanguage : {true, false}) {
            for (SoundTrackPlan &sound : tracks.sounds) {
                const auto found = std::ranges::find_if(left, [&](const MediaTrack *track) {
                    return sound.joined.last() < 0 && (!needsLanguage || track->language == sound.source->language);
                });
                if (found == left.end())
                    continue;
                sound.joined.last() = (*found)->index;
                left.erase(found);
            }
        }
        const QString name = plan.sources.at(number).section(u'/', -1);
        const auto isSilent = [](const SoundTrackPlan &sound) { return sound.joined.last() < 0; };
        if (std::ranges::any_of(tracks.sounds, isSilent))
            tracks.leftOut.append(
                {"%1 has fewer tracks of sound than other files: what it lacks is silent."_key, {name}});
        for (const MediaTrack *track : std::as_const(left))
            tracks.leftOut.append(
                {"Sound of %1: %2. The joined file has no track for it."_key, {name, trackName(*track, machine)}});
    }
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
    const auto hasFields = [](const MediaInformation &source) { return mayHaveFields(*source.firstOf(Kind::Video)); };
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
    const bool hasSound = std::ranges::any_of(sources, &MediaInformation::hasAudio);
    const bool hasVideo = std::ranges::all_of(sources, &MediaInformation::hasVideo);
    if (plan.preset.takesVideo() && !hasVideo && std::ranges::any_of(sources, &MediaInformation::hasVideo))
        return tarnwell::Sentence("Films and files without a picture can be joined only into a file of sound."_key);
    if (!plan.preset.takesVideo() && !hasSound)
        return tarnwell::Sentence("This file has no sound to convert."_key);
    if (!plan.preset.takesAudio() && !hasVideo)
        return tarnwell::Sentence("This file has no picture to convert."_key);
    if (!hasVideo && !hasSound)
        return tarnwell::Sentence("This file has neither picture nor sound to convert."_key);
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

    const bool hasVideo = std::ranges::all_of(sources, &MediaInformation::hasVideo);
    const auto leader = std::ranges::find_if(sources, &MediaInformation::hasAudio);
    const bool hasSound = leader != sources.end();
    if (plan.preset.takesVideo() && hasVideo) {
        tracks.video = planJoinedVideo(plan, sources, *tracks.container, machine);
        if (!tracks.video)
            return Refused{{"The encoder for %1 is not installed."_key, {codecLabel(plan.preset.videoCodec)}}};
        const auto hasSeveral = [](const auto &source) { return source.tracksOf(Kind::Video).size() > 1; };
        if (std::ranges::any_of(sources, hasSeveral))
            tracks.leftOut.append(
                tarnwell::Sentence("Further pictures beside the first (other angles or previews)."_key));
    }
    if (plan.preset.takesAudio() && hasSound) {
        planSoundTracks(tracks, plan, *leader, machine);
        if (tracks.sounds.isEmpty() && !wantedSounds(plan, *leader).isEmpty())
            return Refused{{"The encoder for %1 is not installed."_key, {codecLabel(plan.preset.audioCodec)}}};
        if (sources.size() > 1)
            joinSounds(tracks, plan, sources, leader - sources.begin(), machine);
    } else if (hasSound) {
        tracks.leftOut.append(
            {"The sound. %1 holds only pictures."_key, {QString::fromLatin1(tracks.container->name)}});
    }
    if (!tracks.video && tracks.sounds.isEmpty())
        return Refused{{"Nothing of this file would be kept."_key}};
    planCompanions(tracks, plan, sources, machine);
    tellLosses(tracks, plan, sources.first(), machine);
    return tracks;
}

}  // namespace kestrel
