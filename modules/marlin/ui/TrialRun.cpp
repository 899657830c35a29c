#include "TrialRun.h"

#include "media/FramePreview.h"

namespace kestrel {

TrialRun::TrialRun(QObject *parent) : QObject(parent) {}

TrialRun::~TrialRun() = default;

void TrialRun::start(const TranscodePlan &plan, const MediaInformation &source, const TranscodeTools &tools,
                     double seconds)
{
    TranscodePlan trial = trialPlan(plan, source, seconds);
    trial.besideSource = false;
    trial.namePattern.clear();
    m_job = std::make_unique<TranscodeJob>(
        TranscodeRequest{.plan = trial, .information = {source}, .folder = m_folder.path(), .tools = tools});
    connect(m_job.get(), &Job::progressed, this,
            [this](const JobProgress &progress) { emit progressed(progress.fraction.value_or(0)); });
    connect(m_job.get(), &Job::finished, this, [this](const JobOutcome &outcome) {
        m_job.release()->deleteLater();
        emit ended(outcome.outputs.value(0), outcome.sentence.localized());
    });
    m_job->start();
}

void TrialRun::cancel()
{
    if (m_job)
        m_job->cancel();
}

}  // namespace kestrel
