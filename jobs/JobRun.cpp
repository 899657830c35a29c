#include "JobRun.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

JobRun::JobRun(std::unique_ptr<Job> job) : m_job(std::move(job))
{
    m_clock.start();
}

JobRun::~JobRun()
{
    if (m_job)
        m_job.release()->deleteLater();
}

void JobRun::end()
{
    m_job.reset();
}

void JobRun::setPaused(bool paused)
{
    m_job->setPaused(paused);
    if (paused && m_clock.isValid()) {
        m_elapsedBefore += m_clock.elapsed();
        m_clock.invalidate();
    } else if (!paused && !m_clock.isValid()) {
        m_clock.start();
    }
}

JobProgress JobRun::taken(JobProgress progress)
{
    if (progress.fraction && std::isfinite(*progress.fraction))
        m_fraction = std::clamp(*progress.fraction, m_fraction.value_or(0.0), 1.0);
    progress.fraction = m_fraction;
    if (m_fraction)
        m_remaining.update(*m_fraction, elapsedSeconds());
    if (!progress.remainingSeconds && m_fraction)
        progress.remainingSeconds = m_remaining.seconds();
    return progress;
}

double JobRun::elapsedSeconds() const
{
    return double(m_elapsedBefore + (m_clock.isValid() ? m_clock.elapsed() : 0)) / 1000;
}

}  // namespace kestrel
