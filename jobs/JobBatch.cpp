#include "JobBatch.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

void JobBatch::add(JobId id, double weight)
{
    const double sound = std::isfinite(weight) && weight > 0 ? weight : 1;
    m_waiting.insert(id, sound);
    m_totalWeight += sound;
    restartClock();  // there is more to do than what the guess so far was made for
}

void JobBatch::begin(JobId id)
{
    m_running.insert(id, {m_waiting.take(id), {}});
}

void JobBatch::setProgress(JobId id, const JobProgress &progress)
{
    const auto found = m_running.find(id);
    if (found == m_running.end())
        return;
    found->progress = progress;
    const double fraction = finishedWeight() / m_totalWeight;
    if (!m_clock.isValid()) {
        m_clock.start();
        m_startFraction = fraction;
        m_remaining = {};
    }
    if (m_startFraction < 1)
        m_remaining.update((fraction - m_startFraction) / (1 - m_startFraction), double(m_clock.elapsed()) / 1000);
}

void JobBatch::finish(JobId id)
{
    m_doneWeight += m_running.take(id).weight;
}

void JobBatch::withdraw(JobId id)
{
    m_totalWeight -= m_waiting.take(id) + m_running.take(id).weight;
    restartClock();
}

void JobBatch::restartClock()
{
    m_clock.invalidate();
}

double JobBatch::finishedWeight() const
{
    double weight = m_doneWeight;
    for (const Running &running : m_running)
        weight += running.weight * running.progress.fraction.value_or(0);
    return weight;
}

bool JobBatch::canTell() const
{
    return m_doneWeight > 0 || std::any_of(m_running.begin(), m_running.end(), [](const Running &running) {
               return running.progress.fraction.has_value();
           });
}

JobProgress JobBatch::progress() const
{
    JobProgress all;
    for (const Running &running : m_running) {
        all.seconds += running.progress.seconds;
        all.bytes += running.progress.bytes;
        all.bytesPerSecond += running.progress.bytesPerSecond;
    }
    if (!isIdle() && canTell()) {
        all.fraction = std::clamp(finishedWeight() / m_totalWeight, 0.0, 1.0);
        all.remainingSeconds = m_remaining.seconds();
    }
    return all;
}

}  // namespace kestrel
