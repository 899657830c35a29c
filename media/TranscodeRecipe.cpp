#include "TranscodeRecipe.h"

#include "foundation/FileNames.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

Lane laneOf(TranscodeSteps::Work work)
{
    switch (work) {
        case TranscodeSteps::Work::Copy:
            return Lane::Copy;
        case TranscodeSteps::Work::Sound:
            return Lane::Sound;
        case TranscodeSteps::Work::Encode:
            break;
    }
    return Lane::Encode;
}

/// By the preset alone: what has not been looked at may be anything.
TranscodeSteps::Work workOf(const Preset &preset)
{
    const bool encodesSound = preset.takesAudio() && preset.audioCodec != "copy"_L1;
    if (preset.takesVideo() && preset.videoCodec != "copy"_L1)
        return TranscodeSteps::Work::Encode;
    return encodesSound ? TranscodeSteps::Work::Sound : TranscodeSteps::Work::Copy;
}

}  // namespace

TranscodeRecipe::TranscodeRecipe(std::function<TranscodeTools()> tools) : m_tools(std::move(tools)) {}

void TranscodeRecipe::setInformation(JobId id, const QList<MediaInformation> &information)
{
    if (information.isEmpty())
        m_information.remove(id);
    else
        m_information.insert(id, information);
}

std::optional<TranscodeSteps> TranscodeRecipe::stepsOf(const JobRecord &record) const
{
    const auto plan = TranscodePlan::fromJson(record.plan);
    const QList<MediaInformation> information = m_information.value(record.id);
    if (!plan || information.isEmpty() || information.size() != plan->sources.size())
        return std::nullopt;
    auto steps = transcodeSteps(*plan, information, m_tools().machine, {u"/output"_s, u"/work"_s});
    return steps ? std::optional(*std::move(steps)) : std::nullopt;
}

Lane TranscodeRecipe::lane(const JobRecord &record) const
{
    if (const auto steps = stepsOf(record))
        return laneOf(steps->work);
    const auto plan = TranscodePlan::fromJson(record.plan);
    return laneOf(plan ? workOf(plan->preset) : TranscodeSteps::Work::Copy);
}

qint64 TranscodeRecipe::expectedBytes(const JobRecord &record) const
{
    if (const auto steps = stepsOf(record); steps && steps->expectedBytes > 0)
        return steps->expectedBytes;
    const auto plan = TranscodePlan::fromJson(record.plan);
    if (!plan)
        return 0;
    if (plan->maximumBytes > 0 && plan->rateControl == TranscodePlan::RateControl::Size)
        return plan->maximumBytes;
    return std::accumulate(plan->sources.begin(), plan->sources.end(), qint64(0),
                           [](qint64 bytes, const QString &path) { return bytes + foundation::fileFacts(path).bytes; });
}

std::unique_ptr<Job> TranscodeRecipe::makeJob(const JobRecord &record)
{
    // Without a plan it says so and fails.
    const TranscodePlan plan = TranscodePlan::fromJson(record.plan).value_or(TranscodePlan());
    const QList<MediaInformation> information = m_information.value(record.id);
    return std::make_unique<TranscodeJob>(TranscodeRequest{
        .plan = plan,
        .information = information.size() == plan.sources.size() ? information : QList<MediaInformation>(),
        .folder = record.folder,
        .tools = m_tools()});
}

}  // namespace kestrel
