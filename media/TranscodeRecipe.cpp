#include "TranscodeRecipe.h"

#include "foundation/FileNames.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Where a kind of work is done, and the time that it takes of what encoding does.
struct Effort {
    Lane lane;
    double share;
};

Effort effortOf(TranscodeSteps::Work work)
{
    switch (work) {
        case TranscodeSteps::Work::Copy:
            return {Lane::Copy, 1 / 20.0};
        case TranscodeSteps::Work::Sound:
            return {Lane::Sound, 1 / 5.0};
        case TranscodeSteps::Work::Encode:
            break;
    }
    return {Lane::Encode, 1};
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

/// Weighed in seconds of film to be encoded.
JobNeeds TranscodeRecipe::needs(const JobRecord &record) const
{
    const auto plan = TranscodePlan::fromJson(record.plan);
    if (!plan)
        return {.lane = Lane::Copy};
    auto work = workOf(plan->preset);
    qint64 bytes = 0;
    double seconds = 0;
    const QList<MediaInformation> information = m_information.value(record.id);
    if (!information.isEmpty() && information.size() == plan->sources.size()) {
        const auto steps = transcodeSteps(*plan, information, m_tools().machine, {u"/output"_s, u"/work"_s});
        work = steps ? steps->work : work;
        bytes = steps ? steps->expectedBytes : 0;
        seconds = steps ? steps->expected.seconds.value_or(0) : 0;
    }
    if (bytes <= 0 && plan->rateControl == TranscodePlan::RateControl::Size)
        bytes = plan->maximumBytes;
    if (bytes <= 0 || seconds <= 0) {
        constexpr double bytesPerSecond = 500'000;  // of a middling film
        const auto sourceBytes =
            std::accumulate(plan->sources.begin(), plan->sources.end(), qint64(0),
                            [](qint64 sum, const QString &path) { return sum + foundation::fileFacts(path).bytes; });
        bytes = bytes > 0 ? bytes : sourceBytes;
        seconds = seconds > 0 ? seconds : double(sourceBytes) / bytesPerSecond;
    }
    const Effort effort = effortOf(work);
    return {.lane = effort.lane, .bytes = bytes, .weight = seconds * effort.share};
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
