#include "RecordCommand.h"

#include "CliSession.h"
#include "JobRunner.h"
#include "Options.h"
#include "foundation/FileNames.h"
#include "modules/plover/RecordRecipe.h"
#include "modules/plover/X11Display.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

struct RecordRequest {
    RecordPlan plan;
    QString folder;
    bool onlyRecovers = false;
};

bool readArea(const QString &text, RecordRequest &request)
{
    const QStringList parts = text.split(u',');
    int x = 0, y = 0, width = 0, height = 0;
    if (parts.size() != 4 || !readNumber(parts[0], 0, 65535, x) || !readNumber(parts[1], 0, 65535, y) ||
        !readNumber(parts[2], 2, 65535, width) || !readNumber(parts[3], 2, 65535, height))
        return false;
    request.plan.what = RecordPlan::What::Area;
    request.plan.area = {x, y, width, height};
    return true;
}

/// Decimal or, as X11's tools print it, "0x1a00003".
bool readWindow(const QString &text, RecordRequest &request)
{
    bool isNumber = false;
    request.plan.what = RecordPlan::What::Window;
    request.plan.window = text.toUInt(&isNumber, 0);
    return isNumber && request.plan.window != 0;
}

bool readPlace(const QString &text, RecordRequest &request)
{
    const QStringList parts = text.split(u',');
    RecordPlan::Inset place;
    if (parts.size() != 3 || !readNumber(parts[0], 0.0, 1.0, place.x) || !readNumber(parts[1], 0.0, 1.0, place.y) ||
        !readNumber(parts[2], 0.0, 1.0, place.width))
        return false;
    request.plan.inset = place.bounded();
    return true;
}

constexpr Option<RecordRequest> recordOptions[] = {
    {"seconds", "N", "stop by itself after so many",
     [](const QString &value, RecordRequest &request) {
         return readTime(value, request.plan.seconds) && request.plan.seconds > 0;
     }},
    {"screen", "NAME", "a monitor (the first one)",
     [](const QString &value, RecordRequest &request) {
         request.plan.what = RecordPlan::What::Screen;
         request.plan.screen = value;
         return !value.isEmpty();
     }},
    {"window", "ID", "a window by its number: 0x1a00003", &readWindow},
    {"area", "X,Y,W,H", "a part of the desktop, in pixels", &readArea},
    {"portal", nullptr, "what is chosen in a dialog of the desktop's",
     [](const QString &, RecordRequest &request) {
         request.plan.what = RecordPlan::What::Portal;
         request.plan.again = false;
         return true;
     }},
    {"camera", "DEVICE", "a camera instead of the screen: /dev/video0",
     [](const QString &value, RecordRequest &request) {
         request.plan.what = RecordPlan::What::Camera;
         request.plan.camera = value;
         return !value.isEmpty();
     }},
    {"with-camera", "DEVICE", "a camera within the screen's picture",
     [](const QString &value, RecordRequest &request) {
         if (!request.plan.inset)
             request.plan.inset.emplace();
         request.plan.camera = value;
         return !value.isEmpty();
     }},
    {"camera-place", "X,Y,WIDTH", "where it is, as shares of the picture (0.73,0.7,0.25)", &readPlace},
    {"sound", "WHICH", "none, system (what the computer plays), microphone or both",
     [](const QString &value, RecordRequest &request) {
         return readChoice(value, {"none", "system", "microphone", "both"}, request.plan.sound);
     }},
    {"separate-tracks", nullptr, "with both: a track for each instead of a mix",
     [](const QString &, RecordRequest &request) {
         request.plan.separateTracks = true;
         return true;
     }},
    {"rate", "N", "pictures a second (the settings')",
     [](const QString &value, RecordRequest &request) {
         return readNumber(value, RecordPlan::minimumRate, RecordPlan::maximumRate, request.plan.rate);
     }},
    {"quality", "WHICH", "small, good or best (the settings')",
     [](const QString &value, RecordRequest &request) {
         return readChoice(value, {"small", "good", "best"}, request.plan.quality);
     }},
    {"format", "WHICH", "mov or mp4 (mov)",
     [](const QString &value, RecordRequest &request) {
         return readChoice(value, {"mov", "mp4"}, request.plan.container);
     }},
    {"no-pointer", nullptr, "leave the pointer out of the picture",
     [](const QString &, RecordRequest &request) {
         request.plan.pointer = false;
         return true;
     }},
    {"to", "FOLDER", "where the recording goes (the settings' folder)",
     [](const QString &value, RecordRequest &request) {
         request.folder = foundation::absoluteFileName(value);
         return QFileInfo(request.folder).isDir();
     },
     noFolder},
    {"recover", nullptr, "only finish recordings that were interrupted",
     [](const QString &, RecordRequest &request) {
         request.onlyRecovers = true;
         return true;
     }},
};

/// Says on standard error what became of them.
void recover(CliSession &session)
{
    JobQueue &queue = session.queue();
    QList<JobId> open = addRecoveries(queue);
    if (open.isEmpty())
        return;
    QEventLoop loop;
    QObject::connect(&queue, &JobQueue::ended, &loop, [&](JobId id) {
        if (!open.removeOne(id))
            return;
        const JobRecord *record = queue.record(id);
        const QString outputs = record->outcome.outputs.join(u", "_s);
        std::fprintf(stderr, "kestrel-cli: an interrupted recording %s: %s\n",
                     outputs.isEmpty() ? "could not be recovered" : "was recovered",
                     qUtf8Printable(outputs.isEmpty() ? record->outcome.sentence.localized() : outputs));
        if (open.isEmpty())
            loop.quit();
    });
    queue.start(open);
    session.wait(loop);
}

}  // namespace

ExitStatus runRecord(const Surroundings &surroundings, const QStringList &arguments)
{
    CliSession session(ModuleSettingRecord);
    const JKestrelSettingDispatcher &settings = session.settings();
    RecordRequest request{.plan = recordPlan(settings), .folder = {}};
    if (isWaylandSession()) {
        request.plan.what = RecordPlan::What::Portal;
        request.plan.again = true;
    }
    bool isHelp = false;
    const auto left = readArguments<RecordRequest>("record", recordOptions, QString(), arguments, request, isHelp);
    if (!left)
        return wrongUsage(left.reason());
    if (isHelp)
        return AllDone;
    if (!left->isEmpty())
        return wrongUsage(u"\"record\" takes no \"%1\"."_s.arg(left->first()));
    session.queue().load();
    if (request.folder.isNull()) {
        request.folder = settings.getVideoDir();
        QDir().mkpath(request.folder);
    }

    RecordRecipe recipe([&settings] { return recordTools(settings); });
    session.queue().setRecipe(ploverJobs.toString(), &recipe);
    if (request.onlyRecovers)
        return runJobs(session, addRecoveries(session.queue()), surroundings, SignalMeaning::Stop);
    const JobId id = session.queue().add(recordingJob(request.plan, request.folder));
    const ExitStatus status = runJobs(session, {id}, surroundings, SignalMeaning::Stop);
    recover(session);
    return status;
}

}  // namespace kestrel::cli
