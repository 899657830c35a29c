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

#include <cstdio>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

/// What a file holds, or why it cannot be read.
MediaProber::Answer lookedAt(const QString &path, CliSession &session)
{
    MediaProber prober;
    QEventLoop loop;
    std::optional<MediaProber::Answer> told;
    QObject::connect(&prober, &MediaProber::probed, &loop, [&](qint64, const MediaProber::Answer &answer) {
        told = answer;
        loop.quit();
    });
    prober.probe(1, proberBeside(session.settings().getTranscoderPath()), path);
    if (!session.wait(loop) || !told)
        return foundation::Failure{tarnwell::Sentence()};  // the command ends
    return *told;
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

struct Conversion {
    TranscodePlan plan;
    tarnwell::Sentence unusable = {};  ///< why it cannot be begun; none where it can
};

/// What is to be done with the files: one conversion each, or one for all of them.
foundation::Result<QList<Conversion>> conversionsOf(const QStringList &files, const ConvertRequest &request,
                                                    CliSession &session)
{
    QList<Conversion> conversions;
    const bool namesTracks = request.audioNumbers || request.subtitleNumbers || request.burnedSubtitle > 0;
    for (const QString &file : files) {
        if (request.joins && !conversions.isEmpty()) {
            conversions.first().plan.sources.append(file);
            continue;
        }
        Conversion conversion{.plan = request.plan};
        conversion.plan.sources = {file};
        if (namesTracks) {
            // Without the look nobody knows which tracks are meant, and the job would take all of them.
            const MediaProber::Answer answer = lookedAt(file, session);
            if (!answer)
                conversion.unusable = answer.reason();
            else if (!chooseTracks(request, *answer, conversion.plan))
                return foundation::Failure{u"%1 has no track of that number"_s.arg(QFileInfo(file).fileName())};
        }
        conversions.append(conversion);
    }
    return conversions;
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
    const MediaFiles files = mediaFiles(*paths);
    if (files.paths.isEmpty())
        return wrongUsage(u"Name the files to convert."_s);
    if (files.isPart)
        std::fprintf(stderr, "kestrel-cli: a folder is too large; only some of its files are converted\n");
    const auto conversions = conversionsOf(files.paths, request, session);
    if (session.isInterrupted())
        return InterruptedBySignal;
    if (!conversions)
        return wrongUsage(conversions.reason());

    TranscodeRecipe recipe([&settings, &request] {
        TranscodeTools tools = transcodeTools(settings, QThread::idealThreadCount());
        if (request.plan.hardware)
            tools.machine.findHardware();
        return tools;
    });
    session.queue().setRecipe(marlinJobs.toString(), &recipe);
    setLanes(session.queue(), request.plan.threads, QThread::idealThreadCount());
    QList<JobId> ids;
    for (const auto &[plan, unusable] : *conversions) {
        const bool isGiven = !request.folder.isNull() && !plan.besideSource;
        const QString folder = isGiven ? request.folder : conversionFolder(settings, plan);
        if (!isGiven)
            QDir().mkpath(folder);
        JobRecord record = conversionJob(plan, folder);
        if (!unusable.isEmpty()) {
            record.state = JobState::Unusable;
            record.outcome.sentence = unusable;
        }
        ids.append(session.queue().add(record));
    }
    return runJobs(session, ids, surroundings);
}

}  // namespace kestrel::cli
