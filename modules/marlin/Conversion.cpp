#include "Conversion.h"

#include "foundation/FileNames.h"
#include "jobs/JobQueue.h"
#include "media/MediaProber.h"
#include "media/OutputName.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

// Beside the members of the plan
const QString sourceKey = u"source"_s;
const QString folderKey = u"folder"_s;

}  // namespace

TranscodePlan conversionPlan(const JKestrelSettingDispatcher &settings, const Preset &preset, int processors)
{
    TranscodePlan plan;
    plan.preset = preset;
    readSwitches(settings, processors, plan);
    return plan;
}

void readSwitches(const JKestrelSettingDispatcher &settings, int processors, TranscodePlan &plan)
{
    using enum TranscodePlan::Deinterlace;
    const qint64 cores = settings.getCpuCore();
    plan.best = settings.getHQE();
    plan.hardware = settings.getQSV();
    plan.copies = settings.autoCopy();
    plan.threads = cores < 1 || cores >= processors ? 0 : int(cores);
    if (settings.getDeinterlacing())
        plan.deinterlace = plan.deinterlace == Auto || plan.deinterlace == Off ? On : plan.deinterlace;
    else
        plan.deinterlace = plan.deinterlace == Off ? Off : Auto;
    plan.safeMode = settings.getSafeMode();
    plan.chapterPerSource = settings.mergeMKV();
}

void writeSwitches(JKestrelSettingDispatcher &settings, int processors, const TranscodePlan &plan)
{
    using enum TranscodePlan::Deinterlace;
    settings.setHQE(plan.best);
    settings.setQSV(plan.hardware);
    settings.setAutoCopy(plan.copies);
    settings.setCpuCore(plan.threads > 0 ? plan.threads : processors);
    settings.setDeinterlacing(plan.deinterlace != Auto && plan.deinterlace != Off);
    settings.setSafeMode(plan.safeMode);
    settings.setMergeMKV(plan.chapterPerSource);
}

void setLanes(JobQueue &queue, int threads, int processors)
{
    const bool takesAll = threads == 0;
    queue.setLaneLimit(Lane::Encode, takesAll ? std::max(1, processors / 4) : 1);
    queue.setLaneLimit(Lane::Sound, takesAll ? std::max(1, processors / 2) : 1);
}

QString conversionFolder(const JKestrelSettingDispatcher &settings, const TranscodePlan &plan)
{
    if (plan.besideSource && !plan.sources.isEmpty())
        return outputFolder(plan, {});
    const QString music = settings.getMusicDir();
    return plan.preset.takesVideo() || music.isEmpty() ? settings.getVideoDir() : music;
}

TranscodeTools transcodeTools(const JKestrelSettingDispatcher &settings, int processors)
{
    TranscodeTools tools;
    tools.transcoder = settings.getTranscoderPath();
    tools.prober = proberBeside(tools.transcoder);
    tools.machine.processors = processors;
    if (settings.getQSV())
        tools.machine.findHardware();
    return tools;
}

JobRecord conversionJob(const TranscodePlan &plan, const QString &folder)
{
    JobRecord record;
    record.module = marlinJobs.toString();
    record.state = JobState::Ready;
    record.source = plan.sources.value(0);
    record.title = foundation::readableFileName(record.source.section(u'/', -1));
    record.plan = plan.toJson();
    record.folder = folder;
    return record;
}

void setPlan(JobRecord &record, const TranscodePlan &plan)
{
    const QJsonObject former = record.plan;
    record.plan = plan.toJson();
    for (const QString &key : {sourceKey, folderKey}) {
        if (former.contains(key))
            record.plan[key] = former[key];
    }
}

QString ownFolder(const JobRecord &record)
{
    return record.plan[folderKey].toString();
}

void setOwnFolder(JobRecord &record, const QString &folder)
{
    if (folder.isEmpty())
        record.plan.remove(folderKey);
    else
        record.plan[folderKey] = folder;
}

void setSourceSummary(JobRecord &record, const MediaInformation &information)
{
    QJsonObject source{{u"text"_s, information.summary()}};
    if (information.duration)
        source[u"seconds"_s] = *information.duration;
    record.plan[sourceKey] = source;
}

SourceSummary sourceSummary(const JobRecord &record)
{
    const QJsonObject source = record.plan[sourceKey].toObject();
    const double seconds = source[u"seconds"_s].toDouble();
    return {source[u"text"_s].toString(), seconds > 0 ? std::optional(seconds) : std::nullopt};
}

}  // namespace kestrel
