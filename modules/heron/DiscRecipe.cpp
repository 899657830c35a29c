#include "DiscRecipe.h"

#include "DiscImageJob.h"
#include "DiscJob.h"
#include "DiscPlan.h"

#include "modules/marlin/Conversion.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

void applySettings(const JKestrelSettingDispatcher &settings, int processors, DiscPlan &plan)
{
    const QString language = settings.getDVDPreferredAudioLanCode();
    plan.language = language == "Default"_L1 ? QString() : language;
    if (plan.way == DiscWay::Rip)
        plan.transcode = conversionPlan(settings, plan.transcode.preset, processors);
}

QString discFolder(const JKestrelSettingDispatcher &settings, const DiscPlan &plan)
{
    const bool isSound =
        plan.way == DiscWay::Sound || (plan.way == DiscWay::Rip && !plan.transcode.preset.takesVideo());
    const QString music = settings.getMusicDir();
    return isSound && !music.isEmpty() ? music : settings.getVideoDir();
}

JobRecord discJob(const DiscPlan &plan, const QString &folder)
{
    const QString volume = plan.volume.isEmpty() ? QFileInfo(plan.source).fileName() : plan.volume;
    JobRecord record;
    record.module = heronJobs.toString();
    record.state = JobState::Ready;
    record.source = plan.source;
    record.title =
        plan.title == 0 ? volume : Sentence("%1 - Title %2"_key, {volume, QString::number(plan.title)}).localized();
    record.plan = plan.toJson();
    record.folder = folder;
    return record;
}

DiscRecipe::DiscRecipe(std::function<DiscTools()> tools) : m_tools(std::move(tools)) {}

JobNeeds DiscRecipe::needs(const JobRecord &record) const
{
    const auto plan = DiscPlan::fromJson(record.plan);
    if (!plan)
        return {.lane = Lane::Disc};
    // Encoding takes about as long as reading ten times as much.
    const double effort = plan->way == DiscWay::Rip ? 10 : 1;
    const qint64 bytes = std::max<qint64>(0, expectedBytesOf(*plan) - brokenOffBytes(record));
    return {.lane = Lane::Disc, .bytes = bytes, .weight = double(plan->bytes) * effort};
}

std::unique_ptr<Job> DiscRecipe::makeJob(const JobRecord &record)
{
    auto plan = DiscPlan::fromJson(record.plan);
    return plan ? makeDiscJob({.plan = *std::move(plan), .folder = record.folder, .tools = m_tools()}) : nullptr;
}

}  // namespace kestrel
