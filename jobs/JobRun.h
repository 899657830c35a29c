#pragma once

#include "Job.h"
#include "RemainingTime.h"

#include <QElapsedTimer>

namespace kestrel {

/// One run of a job: its object, its clock and its progress, which only grows and tells the time that is left.
class JobRun {
public:
    explicit JobRun(std::unique_ptr<Job> job);
    /// The object goes in a later turn of the event loop: it may be telling that it has finished.
    ~JobRun();
    JobRun(const JobRun &) = delete;
    JobRun &operator=(const JobRun &) = delete;

    bool hasJob() const { return m_job != nullptr; }
    Job &job() const { return *m_job; }
    /// Ends the object at once, and its tools with it.
    void end();

    void setPaused(bool paused);  ///< the job and its clock
    /// What the job says, made consistent with what it said before.
    JobProgress taken(JobProgress progress);
    /// Whether the user may be shown progress again. Asked ten times a second, it says yes each time.
    bool isDue() const { return !m_sinceShown.isValid() || m_sinceShown.elapsed() >= showInterval; }
    void setShown() { m_sinceShown.start(); }

    static constexpr int showInterval = 100;  ///< milliseconds

    bool isCancelled = false;  ///< by the user
    bool isToBeRemoved = false;

private:
    double elapsedSeconds() const;

    std::unique_ptr<Job> m_job;
    QElapsedTimer m_clock;  ///< invalid while it is held
    qint64 m_elapsedBefore = 0;
    QElapsedTimer m_sinceShown;
    RemainingTime m_remaining;
    std::optional<double> m_fraction;
};

}  // namespace kestrel
