#include "DiscCommand.h"

#include "AllRecipes.h"
#include "CliSession.h"
#include "DiscOptions.h"
#include "JobRunner.h"
#include "foundation/FileNames.h"
#include "modules/heron/DiscFailure.h"
#include "modules/heron/DiscRecipe.h"
#include "modules/marlin/Conversion.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

struct Answer {
    ToolEnding ending;
    std::optional<disc::DiscContents> contents;
    DiscToolLines lines;
};

Answer askDisc(CliSession &session, const QString &source)
{
    ToolProcess tool(discInfoCommand(discTools(session.settings(), QThread::idealThreadCount()), source));
    QEventLoop loop;
    Answer answer;
    QObject::connect(&tool, &ToolProcess::ended, &loop, [&](const ToolEnding &ending) {
        answer.ending = ending;
        loop.quit();
    });
    tool.start();
    session.wait(loop);
    const QByteArray output = answer.ending.output.trimmed();
    answer.lines.read(output);
    if (answer.ending.isGood())
        answer.contents = disc::discContentsFromJson(QJsonDocument::fromJson(output).object());
    return answer;
}

ExitStatus runInfo(const QStringList &arguments)
{
    if (arguments.size() != 1 || arguments.first().startsWith(u'-'))
        return wrongUsage(u"\"disc info\" takes one drive, image or folder."_s);
    CliSession session(ModuleSettingDVD);
    const Answer answer = askDisc(session, foundation::absoluteFileName(arguments.first()));
    if (session.isInterrupted())
        return InterruptedBySignal;
    if (!answer.contents) {
        std::fprintf(stderr, "kestrel-cli: %s\n", qUtf8Printable(discFailure(answer.lines, answer.ending).localized()));
        return SomeFailed;
    }
    printLine(answer.ending.output.trimmed());
    return AllDone;
}

/// One plan a title, or one for the whole disc. What the disc cannot do is left to its job to tell.
QList<DiscPlan> plansFor(const DiscChoice &choice, const std::optional<disc::DiscContents> &contents)
{
    QList<DiscPlan> plans;
    for (const int title : choice.titles.isEmpty() ? QList<int>{0} : choice.titles) {
        DiscPlan plan = choice.disc;
        plan.title = title;
        if (contents) {
            const disc::DiscTitle *main = contents->mainTitle();
            if (title == 0 && main && !takesWholeDisc(plan.way))
                plan.title = main->number;
            describeDisc(*contents, plan);
        }
        plans.append(plan);
    }
    return plans;
}

ExitStatus runKeep(const Surroundings &surroundings, const QStringList &arguments, bool rips)
{
    CliSession session(ModuleSettingDVD);
    const JKestrelSettingDispatcher &settings = session.settings();
    DiscChoice choice;
    choice.disc.way = rips ? DiscWay::Rip : DiscWay::Image;
    choice.disc.transcode.preset = builtInPresets().first();
    applySettings(settings, QThread::idealThreadCount(), choice.disc);
    choice.plan = choice.disc.transcode;
    bool isHelp = false;
    const std::vector<Option<ConvertRequest>> discOptions = rips ? ripOptions() : copyOptions();
    const auto sources = readArguments<ConvertRequest>(rips ? "disc rip" : "disc copy", discOptions, u"SOURCE"_s,
                                                       arguments, choice, isHelp);
    if (!sources)
        return wrongUsage(sources.reason());
    if (isHelp)
        return AllDone;
    if (sources->size() != 1)
        return wrongUsage(u"Name one drive, image or folder."_s);
    if (!rips && !choice.namesWay)
        return wrongUsage(u"Say how with --way: image, folder, main, mkv, mpeg or sound."_s);
    const bool choosesTracks = choice.audioNumbers || choice.subtitleNumbers || choice.disc.angle > 1;
    if (takesWholeDisc(choice.disc.way) &&
        (!choice.titles.isEmpty() || !choice.disc.takesAllChapters() || choosesTracks))
        return wrongUsage(u"The whole disc is copied that way: it takes no titles, chapters, angles or tracks."_s);
    choice.disc.source = foundation::absoluteFileName(sources->first());
    choice.disc.transcode = choice.plan;
    choice.disc.soundTracks = choice.audioNumbers;
    choice.disc.subtitleTracks = choice.subtitleNumbers;
    choice.disc.burnedSubtitle = choice.burnedSubtitle;

    DiscRecipe recipe([&settings] { return interruptibleDiscTools(settings); });
    session.queue().setRecipe(heronJobs.toString(), &recipe);
    const Answer answer = askDisc(session, choice.disc.source);
    if (session.isInterrupted())
        return InterruptedBySignal;
    QList<JobId> ids;
    for (const DiscPlan &plan : plansFor(choice, answer.contents)) {
        const QString folder = choice.folder.isNull() ? discFolder(settings, plan) : choice.folder;
        if (choice.folder.isNull())
            QDir().mkpath(folder);
        ids.append(session.queue().add(discJob(plan, folder)));
    }
    return runJobs(session, ids, surroundings);
}

}  // namespace

ExitStatus runDisc(const Surroundings &surroundings, const QStringList &arguments)
{
    const QString verb = arguments.value(0);
    const QStringList rest = arguments.mid(1);
    const bool wantsHelp = arguments.contains("--help"_L1) || arguments.contains("-h"_L1);
    if (verb == "info"_L1 && !wantsHelp)
        return runInfo(rest);
    if (verb == "copy"_L1 || verb == "rip"_L1)
        return runKeep(surroundings, rest, verb == "rip"_L1);
    if (wantsHelp) {
        printLine(
            "Usage: kestrel-cli disc info SOURCE\n"
            "       kestrel-cli disc copy --way WAY [OPTION…] SOURCE\n"
            "       kestrel-cli disc rip [--preset ID] [OPTION…] SOURCE\n\n"
            "SOURCE is a drive, an image or a folder with VIDEO_TS in it.");
        return AllDone;
    }
    return wrongUsage(u"\"disc\" does info, copy or rip."_s);
}

}  // namespace kestrel::cli
