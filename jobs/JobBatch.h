#pragma once

#include "JobRecord.h"
#include "RemainingTime.h"

#include <QElapsedTimer>
#include <QHash>

namespace kestrel {

/// The jobs of a module since it was last idle, as one piece of work: how much of it is done, by weight.
class JobBatch {
public:
    void add(JobId id, double weight);  ///< it waits
    void begin(JobId id);               ///< what waited runs
    void setProgress(JobId id, const JobProgress &progress);
    void finish(JobId id);    ///< what ran has ended, well or not
    void withdraw(JobId id);  ///< what waited or ran never counted
    void restartClock();      ///< some of it was paused or goes on: the guess of the time begins anew

    bool isIdle() const { return m_waiting.isEmpty() && m_running.isEmpty(); }
    double totalWeight() const { return m_totalWeight; }
    double finishedWeight() const;
    bool canTell() const;  ///< whether there is anything to measure progress by
    JobProgress progress() const;

private:
    struct Running {
        double weight = 0;
        JobProgress progress;
    };

    QHash<JobId, double> m_waiting;  ///< with their weights
    QHash<JobId, Running> m_running;
    double m_totalWeight = 0;
    double m_doneWeight = 0;
    QElapsedTimer m_clock;
    double m_startFraction = 0;  ///< when the clock was started
    RemainingTime m_remaining;
};

}  // namespace kestrel
