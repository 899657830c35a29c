#pragma once

#include "DownloadJob.h"

#include "jobs/Job.h"
#include "jobs/JobObstacle.h"

namespace kestrel {

/// How downloads are run from the queue: jobs whose plan is a DownloadPlan.
class DownloadRecipe : public JobRecipe, public JobObstacle {
public:
    /// `tools` is asked for each job, so that settings take effect.
    explicit DownloadRecipe(std::function<DownloadTools()> tools) : m_tools(std::move(tools)) {}

    static constexpr int maximumFromServer = 3;  ///< at once, unless the user asks for more

    JobNeeds needs(const JobRecord &record) const override;
    tarnwell::Sentence obstacle(const JobRecord &record, const QList<const JobRecord *> &active) const override;
    std::unique_ptr<Job> makeJob(const JobRecord &record) override;

private:
    std::function<DownloadTools()> m_tools;
};

}  // namespace kestrel
