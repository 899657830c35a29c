#include "DownloadCommand.h"

#include "CliSession.h"
#include "JobRunner.h"
#include "Options.h"
#include "foundation/FileNames.h"
#include "modules/petrel/Analysis.h"
#include "modules/petrel/Download.h"
#include "modules/petrel/DownloadRecipe.h"
#include "modules/petrel/PartFolder.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

struct DownloadRequest {
    DownloadPlan plan;
    QString folder;  ///< absolute; null for the settings' folder
    QString list;    ///< a file of addresses
    int atOnce = 0;
};

bool readFormat(const QString &value, DownloadRequest &request)
{
    request.plan.extension = value.toLower();
    const bool isSound = soundFormats().contains(request.plan.extension);
    request.plan.soundOnly |= isSound;
    return isSound || downloadFormats().contains(request.plan.extension);
}

bool readProxy(const QString &value, DownloadRequest &request)
{
    request.plan.proxy = proxyAddress(value);
    request.plan.hasOwnProxy = true;
    return !request.plan.proxy.isNull();
}

constexpr Option<DownloadRequest> optionTable[] = {
    {"to", "folder", "where the results go, instead of the settings' folders",
     [](const QString &value, DownloadRequest &request) {
         request.folder = foundation::absoluteFileName(value);
         request.plan.hasOwnFolder = true;
         return QFileInfo(value).isDir();
     },
     noFolder},
    {"resolution", "lines", "\"720P\": at most so many lines, where there is such a picture; \"best\"",
     [](const QString &value, DownloadRequest &request) {
         request.plan.height = heightOfResolution(value);
         return request.plan.height > 0 || value == "best"_L1;
     }},
    {"sound", nullptr, "the sound alone",
     [](const QString &, DownloadRequest &request) {
         request.plan.soundOnly = true;
         if (!soundFormats().contains(request.plan.extension))
             request.plan.extension = soundFormats().first();
         return true;
     }},
    {"format", "name", "mp4, webm, flv, 3gp, mkv; m4a or mp3 for sound", readFormat},
    {"subtitles", "languages", "\"en,de\": put into the file, where they are there",
     [](const QString &value, DownloadRequest &request) {
         request.plan.subtitles = value.split(u',', Qt::SkipEmptyParts);
         return !request.plan.subtitles.isEmpty();
     }},
    {"proxy", "address", "\"socks5://host:port\"; http without a scheme", readProxy},
    {"limit", "bytes", "\"500k\": a second, each",
     [](const QString &value, DownloadRequest &request) { return readBytes(value, request.plan.bytesPerSecond); }},
    {"at-once", "number", "downloads at the same time; also beyond 3 from one server",
     [](const QString &value, DownloadRequest &request) {
         request.plan.manyFromServer = true;
         return readNumber(value, 1, 100, request.atOnce);
     }},
    {"list", "file", "a text file of further addresses",
     [](const QString &value, DownloadRequest &request) {
         request.list = value;
         return QFileInfo(value).isFile();
     }},
};

/// The addresses to be downloaded, or what is wrong with them.
foundation::Result<QStringList> addressesOf(const QStringList &arguments, const DownloadRequest &request)
{
    constexpr qint64 maximumList = 4 * 1024 * 1024;
    QStringList addresses;
    for (const QString &argument : arguments) {
        const QString address = downloadAddress(argument);
        if (address.isNull())
            return foundation::Failure{u"\"%1\" is no address that can be downloaded from"_s.arg(argument)};
        addresses.append(address);
    }
    if (QFile list(request.list); !request.list.isNull()) {
        if (!list.open(QIODevice::ReadOnly) || list.size() > maximumList)
            return foundation::Failure{u"%1 cannot be read"_s.arg(request.list)};
        addresses += addressesIn(textOfFile(list.readAll()));
    }
    if (addresses.isEmpty())
        return foundation::Failure{u"Name the addresses to download from."_s};
    return addresses;
}

/// What an address leads to: one job, or those of a list.
QList<JobRecord> jobsFor(const DownloadPlan &plan, const Analysis::Answer &answer, const QString &folder)
{
    if (answer)
        return downloadJobs(plan, *answer, folder);
    JobRecord record = downloadJob(plan, folder);
    // It waits by itself, or needs the site no more.
    if (passesByItself(answer.reason().kind) || PartFolder::hasLeftFilm(folder, plan))
        return {record};
    record.state = JobState::Unusable;
    record.outcome = {.sentence = answer.reason().sentence, .details = answer.reason().details};
    return {record};
}

/// The jobs for the addresses, in their order, once all of them have been looked at; each is started as soon as its
/// own was. Those that a signal came before are cancelled.
QList<JobId> lookedAt(const QStringList &addresses, const DownloadRequest &request, CliSession &session,
                      const QString &folder)
{
    const JKestrelSettingDispatcher &settings = session.settings();
    QEventLoop loop;
    Analysis analysis([&] { return engineTools(settings); }, downloadTools(settings, 1).answers,
                      Analysis::Patience::Tells);
    std::vector<QList<JobId>> ids(size_t(addresses.size()));
    qsizetype open = addresses.size();
    const auto planOf = [&](qint64 number) {
        DownloadPlan plan = request.plan;
        plan.address = addresses[number];
        return plan;
    };
    QObject::connect(&analysis, &Analysis::answered, &loop, [&](qint64 number, const Analysis::Answer &answer) {
        QList<JobId> &added = ids[size_t(number)];
        for (const JobRecord &record : jobsFor(planOf(number), answer, folder))
            added.append(session.queue().add(record));
        session.queue().start(added);
        if (--open == 0)
            loop.quit();
    });
    for (qsizetype number = 0; number < addresses.size(); ++number)
        analysis.ask(number, planOf(number));
    session.wait(loop);
    QList<JobId> all;
    for (size_t number = 0; number < ids.size(); ++number) {
        JobRecord unasked = downloadJob(planOf(qint64(number)), folder);
        unasked.state = unasked.outcome.state = JobState::Cancelled;
        all += ids[number].isEmpty() ? QList{session.queue().add(unasked)} : ids[number];
    }
    return all;
}

}  // namespace

ExitStatus runDownload(const Surroundings &surroundings, const QStringList &arguments)
{
    CliSession session(ModuleSettingDownload);
    const JKestrelSettingDispatcher &settings = session.settings();
    DownloadRequest request;
    request.plan = downloadPlan(settings, {});
    bool isHelp = false;
    const auto positional = readArguments("download", std::span<const Option<DownloadRequest>>(optionTable),
                                          u"ADDRESS…"_s, arguments, request, isHelp);
    if (!positional)
        return wrongUsage(positional.reason());
    if (isHelp)
        return AllDone;
    const auto addresses = addressesOf(*positional, request);
    if (!addresses)
        return wrongUsage(addresses.reason());
    const QString folder = request.folder.isNull() ? downloadFolder(settings, request.plan) : request.folder;
    QDir().mkpath(folder);

    DownloadRecipe recipe([&settings] { return downloadTools(settings, QThread::idealThreadCount()); });
    session.queue().setRecipe(petrelJobs.toString(), &recipe);
    session.queue().setLaneLimit(Lane::Net, request.atOnce > 0 ? request.atOnce : downloadsAtOnce(settings));
    const auto ids = lookedAt(*addresses, request, session, folder);
    if (session.isInterrupted())
        session.queue().cancel(ids, JobQueue::Waiting::IsCancelled);
    const ExitStatus status = runJobs(session, ids, surroundings, SignalMeaning::Cancel, ids);
    return session.isInterrupted() ? InterruptedBySignal : status;
}

}  // namespace kestrel::cli
