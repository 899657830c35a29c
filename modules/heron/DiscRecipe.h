#pragma once

#include "DiscTools.h"

#include "jobs/Job.h"

namespace kestrel {

class JKestrelSettingDispatcher;
struct DiscPlan;

inline constexpr QStringView heronJobs = u"heron";  ///< what the jobs of discs are stored under

/// What the settings ask of it: the language whose sound comes first, and of a rip all that a conversion takes.
void applySettings(const JKestrelSettingDispatcher &settings, int processors, DiscPlan &plan);

/// Where its result goes: the settings' folder for video, or for music where there are no pictures.
QString discFolder(const JKestrelSettingDispatcher &settings, const DiscPlan &plan);

/// The job that carries the plan out.
JobRecord discJob(const DiscPlan &plan, const QString &folder);

/// How discs are kept from the queue: jobs whose plan is a DiscPlan. One at a time: a drive reads at one place.
class DiscRecipe : public JobRecipe {
public:
    /// `tools` is asked for each job, so that settings take effect.
    explicit DiscRecipe(std::function<DiscTools()> tools);

    JobNeeds needs(const JobRecord &record) const override;
    std::unique_ptr<Job> makeJob(const JobRecord &record) override;

private:
    std::function<DiscTools()> m_tools;
};

}  // namespace kestrel
