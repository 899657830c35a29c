#pragma once

#include "TranscodeJob.h"

#include "jobs/Job.h"

#include <QHash>

#include <functional>

namespace kestrel {

/// How conversions are run from the queue: jobs whose plan is a TranscodePlan. Whoever has looked at the sources tells
/// what they hold, which saves a look and makes lane and size exact; jobs without that are run as well.
class TranscodeRecipe : public JobRecipe {
public:
    /// `tools` is asked for each job, so that settings take effect.
    explicit TranscodeRecipe(std::function<TranscodeTools()> tools);

    /// Of the job's sources, in their order. An empty list forgets them.
    void setInformation(JobId id, const QList<MediaInformation> &information);

    JobNeeds needs(const JobRecord &record) const override;
    std::unique_ptr<Job> makeJob(const JobRecord &record) override;

private:
    std::function<TranscodeTools()> m_tools;
    QHash<JobId, QList<MediaInformation>> m_information;
};

}  // namespace kestrel
