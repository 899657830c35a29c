#pragma once

#include "RecordJob.h"

#include "jobs/Job.h"
#include "jobs/JobRecord.h"

#include <QPointer>

#include <functional>

namespace kestrel {

class JKestrelSettingDispatcher;
class JobQueue;

inline constexpr QStringView ploverJobs = u"plover";  ///< what recordings are stored under

/// What recordings are made with.
RecordTools recordTools(const JKestrelSettingDispatcher &settings);

/// Whether what the portal let be recorded last may be recorded again without a question.
bool canShareAgain();

/// The job that carries the plan out.
JobRecord recordingJob(const RecordPlan &plan, const QString &folder);

/// Adds a job for each recording that was interrupted by the end of its program, or puts it in the place of the one
/// that recorded it. To be started when it suits; they take seconds.
QList<JobId> addRecoveries(JobQueue &queue);

/// How recordings are run from the queue: jobs whose plan is a RecordPlan, or the finishing of one.
class RecordRecipe : public JobRecipe {
public:
    /// `tools` is asked for each job, so that settings take effect.
    explicit RecordRecipe(std::function<RecordTools()> tools);

    JobNeeds needs(const JobRecord &record) const override;
    std::unique_ptr<Job> makeJob(const JobRecord &record) override;

    /// Of the recording that was begun last; null once it has ended.
    RecordJob *recording() const { return m_recording; }

private:
    QPointer<RecordJob> m_recording;
    std::function<RecordTools()> m_tools;
};

}  // namespace kestrel
