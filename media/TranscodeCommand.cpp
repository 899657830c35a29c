#include "TranscodeCommand.h"

#include "AudioFilters.h"
#include "CommandInputs.h"
#include "FilterGraph.h"
#include "FilterText.h"
#include "JoinCommand.h"
#include "RateControl.h"
#include "TrackArguments.h"
#include "TrackPlan.h"

#include "tarnwell/SystemInformation.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;
using tarnwell::operator""_key;

/// The length of what is kept, where a track that stays behind is the longest.
void shortenToKept(QList<SourcePiece> &pieces, const TrackPlan &tracks, const QList<MediaInformation> &sources)
{
    if (sources.size() != 1)
        return;
    double longest = 0;
    const bool isWhole = pieces.size() == 1 && !pieces.first().end;
    const auto take = [&](const MediaTrack *track) {
        constexpr double unknown = 1e12;
        longest = std::max(longest, track->duration ? track->start + *track->duration : unknown);
    };
    if (tracks.video)
        take(tracks.video->source);
    for (const SoundTrackPlan &sound : tracks.sounds)
        take(sound.source);
    // A cut ends the last cue as well.
    for (const SubtitleTrackPlan &subtitle : tracks.subtitles) {
        if (subtitle.source && isWhole)
            take(subtitle.source);
    }
    for (SourcePiece &piece : pieces) {
        if (piece.seconds)
            piece.seconds = std::clamp(longest - piece.start.value_or(0), 0.0, *piece.seconds);
    }
}

/// What the user should know before: where the result is not simply what the source is.
QList<tarnwell::Sentence> notesOn(const Plan &plan, const TrackPlan &tracks, QSize plannedSize)
{
    QList<tarnwell::Sentence> notes;
    const auto encoded = std::ranges::find_if(tracks.sounds, [](const SoundTrackPlan &each) { return each.encoder; });
    if (plan.preset.audioCodec == "copy"_L1 && encoded != tracks.sounds.end())
        notes.append({"The sound has to be encoded (%1)."_key, {codecLabel(encoded->codec)}});
    if (!tracks.video)
        return notes;
    const VideoTrackPlan &video = *tracks.video;
    const bool isCutAtKeyframe = !video.encoder && !plan.pieces.isEmpty() && plan.pieces.first().start > 0;
    if (isCutAtKeyframe)
        notes.append({"Cut without encoding: it begins at the key picture at or before %1 s."_key,
                      {numberText(plan.pieces.first().start)}});
    const bool wasToBeCopied = plan.preset.videoCodec == "copy"_L1 || (!plan.pieces.isEmpty() && !plan.exactCuts);
    if (video.encoder && wasToBeCopied)
        notes.append({"The picture has to be encoded (%1)."_key, {codecLabel(video.codec)}});
    if (video.size != plannedSize)
        notes.append({"The picture is made smaller, %1 × %2, so that it fits the size."_key,
                      {QString::number(video.size.width()), QString::number(video.size.height())}});
    return notes;
}

class Builder {
public:
    Builder(const Plan &plan, const QList<MediaInformation> &sources, const TranscodeMachine &machine,
            const TranscodePaths &paths, TrackPlan tracks, QList<SourcePiece> pieces)
        : m_plan(plan),
          m_sources(sources),
          m_machine(machine),
          m_paths(paths),
          m_tracks(std::move(tracks)),
          m_pieces(std::move(pieces))
    {
        shortenToKept(m_pieces, m_tracks, sources);
        if (const auto whole = secondsOf(m_pieces))
            m_seconds = *whole / plan.speedFactor;
    }

    foundation::Result<TranscodeSteps, tarnwell::Sentence> steps()
    {
        const QSize plannedSize = m_tracks.video ? m_tracks.video->size : QSize();
        auto rate = planRates(m_plan, m_tracks, m_seconds);
        if (!rate)
            return foundation::Failure{rate.reason()};
        m_rate = *rate;
        m_tracks.notes += notesOn(m_plan, m_tracks, plannedSize);
        m_inputs = commandInputs(m_plan, m_sources, m_tracks, m_pieces, m_paths);
        m_steps.runs = m_inputs.runs;
        m_steps.files = m_inputs.files;
        m_steps.expected.mayBeLonger = m_tracks.video && !m_tracks.video->encoder && !m_plan.pieces.isEmpty();
        if (m_rate.hasTwoPasses) {
            addRun(firstPass(), "First pass"_key, 0.4);
            addRun(lastPass(2), "Second pass"_key, 0.6);
        } else {
            addRun(lastPass(0), {}, 1);
        }
        finish();
        return m_steps;
    }

private:
    bool isHardware() const { return m_tracks.video && m_tracks.video->isHardware; }
    QString log() const { return m_paths.workFolder + u"/passes"_s; }

    void addRun(const QStringList &arguments, tarnwell::TextKey stage, double share)
    {
        m_steps.runs.append({.arguments = arguments,
                             .stage = stage.isEmpty() ? tarnwell::Sentence() : tarnwell::Sentence(stage),
                             .share = share,
                             .seconds = m_seconds.value_or(0)});
    }

    QStringList device() const
    {
        if (!isHardware())
            return {};
        const bool isHevc = m_tracks.video->codec == "hevc"_L1;
        return {QString::fromLatin1(tarnwell::hardwareEncoderArguments.device),
                isHevc ? m_machine.hevcDevice : m_machine.hardwareDevice};
    }

    QStringList pictureArguments(const FilterGraph &graph, int pass) const
    {
        QStringList arguments{u"-map"_s, graph.pictures};
        if (!graph.pictureFilters.isEmpty())
            arguments << u"-filter:v:0"_s << graph.pictureFilters;
        arguments += videoArguments(m_plan, *m_tracks.video, m_rate, pass, log());
        if (m_tracks.video->encoder) {
            const bool isSteady =
                m_tracks.video->encoder->isSteady || !m_tracks.container->has(Container::VariableRate);
            arguments << u"-fps_mode:v:0"_s << (isSteady ? u"cfr"_s : u"vfr"_s);
            if (m_tracks.video->mostRate > 0)
                arguments << u"-fpsmax:v:0"_s << numberText(m_tracks.video->mostRate);
        }
        return arguments;
    }

    QStringList firstPass() const
    {
        const FilterGraph graph = filterGraph(m_plan, m_tracks, m_inputs.graph, m_seconds, false);
        QStringList arguments = commonHead() + device() + m_inputs.firstPassArguments;
        if (!graph.graph.isEmpty())
            arguments << u"-filter_complex"_s << graph.graph;
        arguments += pictureArguments(graph, 1);
        return arguments + threadArguments(m_plan) +
               QStringList{u"-an"_s, u"-sn"_s, u"-dn"_s, u"-f"_s, u"null"_s, u"-"_s};
    }

    QStringList lastPass(int pass) const
    {
        const FilterGraph graph = filterGraph(m_plan, m_tracks, m_inputs.graph, m_seconds);
        QStringList arguments = commonHead() + device() + m_inputs.arguments;
        if (!graph.graph.isEmpty())
            arguments << u"-filter_complex"_s << graph.graph;
        if (m_tracks.video)
            arguments += pictureArguments(graph, pass);
        for (int number = 0; number < m_tracks.sounds.size(); ++number) {
            arguments << u"-map"_s << graph.sounds.at(number);
            if (const QString filters = graph.soundFilterLines.value(number); !filters.isEmpty())
                arguments << u"-filter:a:%1"_s.arg(number) << filters;
            arguments += soundArguments(m_plan, m_tracks.sounds.at(number), number);
        }
        arguments += subtitleArguments(m_plan, m_tracks, m_inputs.subtitles.maps, cueTimes(m_plan, m_pieces));
        arguments += companionArguments(m_tracks, m_inputs.coverPath);
        arguments += tagArguments(m_plan, m_tracks, m_sources.first(), m_inputs.chapterInput);
        if (m_inputs.coverInput >= 0)
            arguments << u"-map_metadata:s:a:0"_s << u"%1:s:0"_s.arg(m_inputs.coverInput);
        arguments += threadArguments(m_plan);
        // Else players that mind the list of edits would not show what stands before the start.
        if (m_steps.expected.mayBeLonger)
            arguments << u"-avoid_negative_ts"_s << u"make_zero"_s;
        return arguments + commonTail(m_tracks, m_paths.output);
    }

    void finish()
    {
        m_steps.leftOut = m_tracks.leftOut;
        m_steps.notes = m_tracks.notes;
        m_steps.expected.tracks = expectedTracks(m_tracks);
        m_steps.expected.seconds = m_seconds;
        m_steps.expected.chapters = m_inputs.chapters;
        const bool copiesPictures = m_tracks.video && !m_tracks.video->encoder;
        if (copiesPictures)
            m_steps.expected.rotation = m_tracks.video->source->rotation;
        if (m_plan.rateControl == Plan::RateControl::Size)
            m_steps.expected.maximumBytes = m_plan.maximumBytes;
        m_steps.expected.secondsAreTold = std::ranges::all_of(m_sources, &MediaInformation::headerTellsDuration);
        m_steps.expected.decodesAll = m_plan.safeMode || (m_tracks.copiesAny() && !m_steps.expected.secondsAreTold);
        m_steps.work = m_tracks.copiesAll()                ? TranscodeSteps::Work::Copy
                       : m_tracks.video && !copiesPictures ? TranscodeSteps::Work::Encode
                                                           : TranscodeSteps::Work::Sound;
        m_steps.expectedBytes = expectedSize(m_plan, m_tracks, m_rate, m_sources, m_seconds);
        m_steps.takesShortcut = isHardware() || m_tracks.copiesAny();
    }

    const Plan &m_plan;
    const QList<MediaInformation> &m_sources;
    const TranscodeMachine &m_machine;
    const TranscodePaths &m_paths;
    TrackPlan m_tracks;
    QList<SourcePiece> m_pieces;
    std::optional<double> m_seconds;  ///< of the result
    RateTarget m_rate;
    CommandInputs m_inputs;
    TranscodeSteps m_steps;
};

}  // namespace

void TranscodeMachine::findHardware()
{
    constexpr quint32 avc1 = 0x61766331, hvc1 = 0x68766331;
    static const QString devices[] = {tarnwell::hardwareEncoderDevice(avc1, 1280, 720),
                                      tarnwell::hardwareEncoderDevice(hvc1, 1280, 720)};
    hardwareDevice = devices[0];
    hevcDevice = devices[1];
}

foundation::Result<TranscodeSteps, tarnwell::Sentence> transcodeSteps(const Plan &plan,
                                                                      const QList<MediaInformation> &sources,
                                                                      const TranscodeMachine &machine,
                                                                      const TranscodePaths &paths)
{
    auto tracks = planTracks(plan, sources, machine);
    if (!tracks)
        return foundation::Failure{tracks.reason()};
    const QList<SourcePiece> pieces = sourcePieces(plan, sources);
    if (pieces.size() == 1)
        return Builder(plan, sources, machine, paths, *tracks, pieces).steps();

    const auto staysInPlace = [](const SoundTrackPlan &sound) {
        return std::ranges::count(sound.joined, sound.source->index) == sound.joined.size();
    };
    if (tracks->copiesAll() && canBeJoined(sources) && std::ranges::all_of(tracks->sounds, staysInPlace))
        return joinSteps(plan, sources, *tracks, pieces, paths);
    Plan encoding = plan;
    encoding.copies = false;
    tracks = planTracks(encoding, sources, machine);
    if (!tracks)
        return foundation::Failure{tracks.reason()};
    return Builder(encoding, sources, machine, paths, *tracks, pieces).steps();
}

bool cutsAtKeyPictures(const Plan &plan, const QList<MediaInformation> &sources, const TranscodeMachine &machine)
{
    if (plan.pieces.isEmpty() || plan.exactCuts)
        return false;
    const auto tracks = planTracks(plan, sources, machine);
    // Several pieces are copied only where all of their tracks are.
    return tracks && tracks->video && !tracks->video->encoder && (plan.pieces.size() == 1 || tracks->copiesAll());
}

TranscodePlan withoutShortcuts(Plan plan)
{
    plan.copies = false;
    plan.hardware = false;
    return plan;
}

}  // namespace kestrel
