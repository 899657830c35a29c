#include "RecordRecipe.h"

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "jobs/JobQueue.h"
#include "media/MediaProber.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/SystemInformation.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString noteKey = u"unfinished"_s;  // beside the members of the plan: what is written down of the recording

// A key of its own, beside the archive of the settings: it changes with every recording, also in processes whose
// settings are older than what the window has stored since.
const QString tokenKey = u"screenCastRestoreToken"_s;

}  // namespace

RecordTools recordTools(const JKestrelSettingDispatcher &settings)
{
    return {.transcoder = settings.getTranscoderPath(),
            .prober = proberBeside(settings.getTranscoderPath()),
            .frames = tarnwell::productBundle().contentsPath(u"Helpers/screenFrames"_s),
            .restoreToken = foundation::UserDefaults::standardUserDefaults().stringForKey(tokenKey),
            .keepToken =
                [](const QString &token) {
                    auto &defaults = foundation::UserDefaults::standardUserDefaults();
                    defaults.setObject(token.isEmpty() ? QVariant() : token, tokenKey);
                },
            .hardwareDevice =
                [isWanted = settings.getQSV()](QSize pictures) {
                    constexpr quint32 avc1 = 0x61766331;
                    return isWanted ? tarnwell::hardwareEncoderDevice(avc1, pictures.width(), pictures.height())
                                    : QString();
                }};
}

bool canShareAgain()
{
    return !foundation::UserDefaults::standardUserDefaults().stringForKey(tokenKey).isEmpty();
}

JobRecord recordingJob(const RecordPlan &plan, const QString &folder)
{
    RecordPlan named = plan;
    if (named.name.isEmpty())
        named.name = newRecordingName();
    JobRecord record;
    record.module = ploverJobs.toString();
    record.title = named.name;
    record.plan = named.toJson();
    record.folder = folder;
    return record;
}

QList<JobId> addRecoveries(JobQueue &queue)
{
    const QString module = ploverJobs.toString();
    QList<JobId> ids;
    for (const UnfinishedRecording &recording : UnfinishedRecording::findAll()) {
        JobRecord recovery = recordingJob(recording.plan, recording.folder);
        recovery.plan[noteKey] = recording.note;
        JobId known = 0;
        for (const JobId id : queue.idsIn({JobState::Interrupted}, module)) {
            if (queue.record(id)->title == recovery.title && queue.record(id)->folder == recovery.folder)
                known = id;
        }
        if (known != 0)
            queue.change(known, [&](JobRecord &record) {
                record.plan = recovery.plan;
                record.state = JobState::Ready;
            });
        ids.append(known != 0 ? known : queue.add(recovery));
    }
    return ids;
}

RecordRecipe::RecordRecipe(std::function<RecordTools()> tools) : m_tools(std::move(tools)) {}

/// No space: a recording looks after the disk itself, and waits for nothing.
JobNeeds RecordRecipe::needs(const JobRecord &record) const
{
    return {.lane = record.plan.contains(noteKey) ? Lane::Copy : Lane::Capture};
}

std::unique_ptr<Job> RecordRecipe::makeJob(const JobRecord &record)
{
    if (record.plan.contains(noteKey)) {
        auto recording = UnfinishedRecording::read(record.plan[noteKey].toString());
        return std::make_unique<RecordJob>(recording ? *std::move(recording) : UnfinishedRecording(), m_tools());
    }
    const auto plan = RecordPlan::fromJson(record.plan);
    if (!plan)
        return nullptr;
    auto job = std::make_unique<RecordJob>(*plan, record.folder, m_tools());
    m_recording = job.get();
    return job;
}

}  // namespace kestrel
