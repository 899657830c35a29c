#include "ConvertCommand.h"

#include "CliSession.h"
#include "ConvertOptions.h"
#include "JobRunner.h"
#include "media/MediaFiles.h"
#include "media/MediaProber.h"
#include "media/TranscodeRecipe.h"
#include "modules/marlin/Conversion.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

/// What a file holds; nothing where it cannot be read, which its job will tell.
std::optional<MediaInformation> lookedAt(const QString &path, CliSession &session)
{
    MediaProber prober;
    QEventLoop loop;
    std::optional<MediaInformation> information;
    QObject::connect(&prober, &MediaProber::probed, &loop, [&](qint64, const MediaProber::Answer &answer) {
        if (answer)
            information = *answer;
        loop.quit();
    });
    prober.probe(1, proberBeside(session.settings().getTranscoderPath()), path);
    session.wait(loop);
    return information;
}

/// The index in the file of the track with this number among those of its kind, from 1; nothing where there is none.
std::optional<int> trackIndex(const MediaInformation &information, MediaTrack::Kind kind, int number)
{
    const QList<MediaTrack> tracks = information.tracksOf(kind);
    return number >= 1 && number <= tracks.size() ? std::optional(tracks[number - 1].index) : std::nullopt;
}

/// Puts tracks that were named by number into the plan. False where the file has no such track.
bool chooseTracks(const ConvertRequest &request, const MediaInformation &information, TranscodePlan &plan)
{
    if (request.audioNumbers) {
        plan.audioTracks.emplace();
        for (const int number : *request.audioNumbers) {
            const auto index = trackIndex(information, MediaTrack::Kind::Audio, number);
            if (!index)
                return false;
            plan.audioTracks->append(*index);
        }
    }
    if (request.subtitleNumbers) {
        for (const MediaTrack &track : information.tracksOf(MediaTrack::Kind::Subtitle))
            plan.subtitles[track.index] = TranscodePlan::SubtitleUse::Leave;
        for (const int number : *request.subtitleNumbers) {
            const auto index = trackIndex(information, MediaTrack::Kind::Subtitle, number);
            if (!index)
                return false;
            plan.subtitles[*index] = TranscodePlan::SubtitleUse::Keep;
        }
    }
    if (request.burnedSubtitle > 0) {
        const auto index = trackIndex(information, MediaTrack::Kind::Subtitle, request.burnedSubtitle);
        if (!index)
            return false;
        plan.subtitles[*index] = TranscodePlan::SubtitleUse::Burn;
    }
    return true;
}

/// The plans for the files: one each, or one for all of them.
foundation::Result<QList<TranscodePlan>> plansFor(const QStringList &files, const ConvertRequest &request,
                                                  CliSession &session)
{
    QList<TranscodePlan> plans;
    const bool namesTracks = request.audioNumbers || request.subtitleNumbers || request.burnedSubtitle > 0;
    for (const QString &file : files) {
        if (request.joins && !plans.isEmpty()) {
            plans.first().sources.append(file);
            continue;
        }
        TranscodePlan plan = request.plan;
        plan.sources = {file};
        if (const auto information = namesTracks ? lookedAt(file, session) : std::nullopt;
            information && !chooseTracks(request, *information, plan))
            return foundation::Failure{u"%1 has no track of that number"_s.arg(QFileInfo(file).fileName())};
        plans.append(plan);
    }
    return plans;
}

}  // namespace

ExitStatus runConvert(const Surroundings &surroundings, const QStringList &arguments)
{
    CliSession session(ModuleSettingVideo);
    const JKestrelSettingDispatcher &settings = session.settings();
    ConvertRequest request;
    request.plan = conversionPlan(settings, builtInPresets().first(), QThread::idealThreadCount());
    bool isHelp = false;
    const auto paths = readArguments("convert", convertOptions(), u"FILE…"_s, arguments, request, isHelp);
    if (!paths)
        return wrongUsage(paths.reason());
    if (isHelp)
        return AllDone;
    const QStringList files = mediaFiles(*paths);
    if (files.isEmpty())
        return wrongUsage(u"Name the files to convert."_s);
    const auto plans = plansFor(files, request, session);
    if (session.isInterrupted())
        return InterruptedBySignal;
    if (!plans)
        return wrongUsage(plans.reason());

    TranscodeRecipe recipe([&settings] { return transcodeTools(settings, QThread::idealThreadCount()); });
    session.queue().setRecipe(marlinJobs.toString(), &recipe);
    QList<JobId> ids;
    for (const TranscodePlan &plan : *plans) {
        const bool isGiven = !request.folder.isNull() && !plan.besideSource;
        const QString folder = isGiven ? request.folder : conversionFolder(settings, plan);
        if (!isGiven)
            QDir().mkpath(folder);
        ids.append(session.queue().add(conversionJob(plan, folder)));
    }
    return runJobs(session, ids, surroundings);
}

}  // namespace kestrel::cli
