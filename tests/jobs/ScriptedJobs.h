#pragma once

#include "jobs/JobQueue.h"

#include <QPointer>

namespace kestrel::test {

inline const QString marlin = QStringLiteral("marlin");  ///< whose jobs they are

/// A job that does what the test says.
class ScriptedJob : public Job {
public:
    explicit ScriptedJob(JobId ofJob) : id(ofJob) {}
    void start() override { hasStarted = true; }
    void stop() override { end({.state = JobState::Done, .sentence = {}, .details = QStringLiteral("stopped")}); }
    void cancel() override
    {
        if (!isDeaf)
            end({.state = JobState::Cancelled});
    }
    bool canPause() const override { return true; }
    void setPaused(bool paused) override { isPaused = paused; }

    void end(const JobOutcome &outcome)
    {
        QMetaObject::invokeMethod(
            this, [this, outcome] { emit finished(outcome); }, Qt::QueuedConnection);
    }

    using Job::beforePlacing;

    const JobId id;
    bool hasStarted = false;
    bool isPaused = false;
    bool isDeaf = false;  ///< to cancel
};

/// Every job takes the lane, the bytes and the weight that its plan names.
class ScriptedRecipe : public JobRecipe {
public:
    JobNeeds needs(const JobRecord &record) const override
    {
        return {.lane = Lane(record.plan[QStringLiteral("lane")].toInt()),
                .bytes = record.plan[QStringLiteral("bytes")].toInteger(),
                .weight = record.plan[QStringLiteral("weight")].toDouble(1)};
    }
    std::unique_ptr<Job> makeJob(const JobRecord &record) override
    {
        auto job = std::make_unique<ScriptedJob>(record.id);
        made.append(job.get());
        return job;
    }

    /// The present run of the job; null where there is none.
    ScriptedJob *jobOf(JobId id) const
    {
        for (auto job = made.crbegin(); job != made.crend(); ++job) {
            if (*job && (*job)->id == id)
                return *job;
        }
        return nullptr;
    }

    QList<QPointer<ScriptedJob>> made;
};

inline JobRecord scriptedRecord(const QString &title, Lane lane = Lane::Encode, const QJsonObject &plan = {})
{
    JobRecord record;
    record.module = QStringLiteral("marlin");
    record.title = title;
    record.plan = plan;
    record.plan.insert(QStringLiteral("lane"), int(lane));
    return record;
}

}  // namespace kestrel::test
