#include "Conversion.h"

#include "settings/JKestrelSettingDispatcher.h"

#include <QFileInfo>

namespace kestrel {

TranscodePlan conversionPlan(const JKestrelSettingDispatcher &settings, const Preset &preset, int processors)
{
    const qint64 cores = settings.getCpuCore();
    TranscodePlan plan;
    plan.preset = preset;
    plan.best = settings.getHQE();
    plan.hardware = settings.getQSV();
    plan.copies = settings.autoCopy();
    plan.threads = cores < 1 || cores >= processors ? 0 : int(cores);
    plan.deinterlace =
        settings.getDeinterlacing() ? TranscodePlan::Deinterlace::On : TranscodePlan::Deinterlace::Auto;
    plan.safeMode = settings.getSafeMode();
    plan.chapterPerSource = settings.mergeMKV();
    return plan;
}

QString conversionFolder(const JKestrelSettingDispatcher &settings, const TranscodePlan &plan)
{
    if (plan.besideSource && !plan.sources.isEmpty())
        return QFileInfo(plan.sources.first()).absolutePath();
    const QString music = settings.getMusicDir();
    return plan.preset.takesVideo() || music.isEmpty() ? settings.getVideoDir() : music;
}

JobRecord conversionJob(const TranscodePlan &plan, const QString &folder)
{
    JobRecord record;
    record.module = marlinJobs.toString();
    record.state = JobState::Ready;
    record.source = plan.sources.value(0);
    record.title = QFileInfo(record.source).fileName();
    record.plan = plan.toJson();
    record.folder = folder;
    return record;
}

}  // namespace kestrel
