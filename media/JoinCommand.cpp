#include "JoinCommand.h"

#include "ChapterFile.h"
#include "RateControl.h"
#include "SubtitleInputs.h"
#include "TrackArguments.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;
using tarnwell::operator""_key;

bool areAlike(const MediaTrack &one, const MediaTrack &other)
{
    return one.index == other.index && one.kind == other.kind && one.codec == other.codec &&
           one.profile == other.profile && one.width == other.width && one.height == other.height &&
           one.pixelFormat == other.pixelFormat && std::abs(one.sampleAspect - other.sampleAspect) < 1e-4 &&
           std::abs(one.frameRate - other.frameRate) < 0.01 * std::max(1.0, one.frameRate) &&
           one.rotation == other.rotation && one.fieldOrder == other.fieldOrder &&
           one.colorTransfer == other.colorTransfer && one.channels == other.channels &&
           one.sampleRate == other.sampleRate && one.channelLayout == other.channelLayout;
}

QList<MediaTrack> played(const MediaInformation &source)
{
    return source.tracksOf(Kind::Video) + source.tracksOf(Kind::Audio);
}

QByteArray listFile(const QStringList &paths)
{
    QByteArray list = "ffconcat version 1.0\n";
    for (QString path : paths)
        list += "file 'file:" + path.replace(u"'"_s, u"'\\''"_s).toUtf8() + "'\n";
    return list;
}

/// Of the tracks that are played, in their order.
QList<int> indexesOf(const TrackPlan &tracks)
{
    QList<int> indexes;
    if (tracks.video)
        indexes << tracks.video->source->index;
    for (const SoundTrackPlan &sound : tracks.sounds)
        indexes << sound.source->index;
    return indexes;
}

/// Cuts each piece of the one source into a file of its own, which `parts` names.
QList<TranscodeRun> pieceRuns(const Plan &plan, const MediaInformation &source, const TrackPlan &tracks,
                              const QList<SourcePiece> &pieces, const QStringList &parts)
{
    QList<TranscodeRun> runs;
    for (qsizetype number = 0; number < pieces.size(); ++number) {
        const SourcePiece &piece = pieces.at(number);
        QStringList arguments = commonHead() + pieceInput(piece, source, plan.sources.first(), true);
        for (const int index : indexesOf(tracks))
            arguments << u"-map"_s << u"0:%1"_s.arg(index);
        arguments << u"-c"_s << u"copy"_s << u"-map_chapters"_s << u"-1"_s << u"-avoid_negative_ts"_s << u"make_zero"_s;
        arguments += commonTail(tracks, parts.at(number));
        runs.append({.arguments = arguments,
                     .stage = {"Piece %1 of %2"_key, {QString::number(number + 1), QString::number(pieces.size())}},
                     .share = 0.5 / double(pieces.size()),
                     .seconds = piece.seconds.value_or(0)});
    }
    return runs;
}

/// What the steps come to.
void tellResult(const Plan &plan, const QList<MediaInformation> &sources, const TrackPlan &tracks,
                std::optional<double> seconds, TranscodeSteps &steps)
{
    steps.expected.tracks = expectedTracks(tracks);
    steps.expected.seconds = seconds;
    steps.expected.secondsAreTold = std::ranges::all_of(sources, &MediaInformation::headerTellsDuration);
    steps.expected.mayBeLonger = !plan.pieces.isEmpty();
    if (tracks.video)
        steps.expected.rotation = tracks.video->source->rotation;
    // Parameters that no report tells may differ still; only decoding shows it.
    steps.expected.decodesAll = true;
    steps.leftOut = tracks.leftOut;
    steps.notes = tracks.notes;
    steps.work = TranscodeSteps::Work::Copy;
    steps.takesShortcut = true;
    steps.expectedBytes = expectedSize(plan, tracks, {}, sources, seconds);
}

}  // namespace

bool canBeJoined(const QList<MediaInformation> &sources)
{
    const QList<MediaTrack> first = played(sources.first());
    return std::ranges::all_of(sources, [&](const MediaInformation &source) {
        const QList<MediaTrack> tracks = played(source);
        return source.format == sources.first().format &&
               std::equal(tracks.begin(), tracks.end(), first.begin(), first.end(), areAlike);
    });
}

foundation::Result<TranscodeSteps, tarnwell::Sentence> joinSteps(const Plan &plan,
                                                                 const QList<MediaInformation> &sources,
                                                                 TrackPlan tracks, const QList<SourcePiece> &pieces,
                                                                 const TranscodePaths &paths)
{
    if (!tracks.container->has(Container::Covers) && !tracks.covers.isEmpty()) {
        tracks.covers.clear();
        tracks.leftOut.append(tarnwell::Sentence("The cover picture. It is lost when files are joined so."_key));
    }
    TranscodeSteps steps;
    const std::optional<double> seconds = secondsOf(pieces);
    const bool isCut = !plan.pieces.isEmpty();
    QStringList parts;
    for (const SourcePiece &piece : pieces)
        parts << (isCut ? u"%1/piece%2.%3"_s.arg(paths.workFolder).arg(parts.size()).arg(plan.preset.extension)
                        : plan.sources.at(piece.source));
    if (isCut)
        steps.runs = pieceRuns(plan, sources.first(), tracks, pieces, parts);

    const QString list = paths.workFolder + u"/list.txt"_s;
    steps.files.insert(list, listFile(parts));
    QStringList arguments =
        commonHead() + QStringList{u"-f"_s, u"concat"_s, u"-safe"_s, u"0"_s, u"-i"_s, u"file:"_s + list};
    // What the list hides stands in the first file itself.
    arguments << u"-i"_s << u"file:"_s + plan.sources.first();
    const SubtitleInputs subtitles = subtitleInputs(plan, sources.first(), tracks, pieces, paths.workFolder, 1, 2);
    arguments += subtitles.arguments;
    steps.runs += subtitles.runs;
    int chapterInput = -1;
    if (tracks.keepsChapters) {
        const QList<MediaChapter> chapters = resultChapters(plan, sources, pieces);
        steps.expected.chapters = chapters.size();
        if (!chapters.isEmpty()) {
            const QString path = paths.workFolder + u"/chapters.txt"_s;
            steps.files.insert(path, chapterFile(chapters));
            arguments << u"-f"_s << u"ffmetadata"_s << u"-i"_s << u"file:"_s + path;
            chapterInput = 2 + subtitles.count;
        }
    }
    const QList<int> indexes = indexesOf(tracks);
    for (qsizetype number = 0; number < indexes.size(); ++number)
        arguments << u"-map"_s << u"0:%1"_s.arg(isCut ? number : indexes.at(number));
    arguments << u"-c"_s << u"copy"_s;
    arguments += subtitleArguments(plan, tracks, subtitles.maps, cueTimes(plan, pieces));
    for (const MediaTrack *file : std::as_const(tracks.attachments))
        arguments << u"-map"_s << u"1:%1"_s.arg(file->index);
    if (!tracks.covers.isEmpty())
        arguments << u"-map"_s << u"1:%1"_s.arg(tracks.covers.first()->index)
                  << (tracks.video ? u"-disposition:v:1"_s : u"-disposition:v:0"_s) << u"attached_pic"_s;
    QStringList tags = tagArguments(plan, tracks, sources.first(), chapterInput);
    tags[1].front() = u'1';  // the second input has them
    arguments += tags;
    arguments += commonTail(tracks, paths.output);
    steps.runs.append({.arguments = arguments,
                       .stage = isCut ? tarnwell::Sentence("Joining"_key) : tarnwell::Sentence(),
                       .share = isCut ? 0.5 : 1,
                       .seconds = seconds.value_or(0)});

    tellResult(plan, sources, tracks, seconds, steps);
    return steps;
}

}  // namespace kestrel
