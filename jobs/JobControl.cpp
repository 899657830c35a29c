#include "JobQueue.h"
#include "JobRun.h"
#include "JobStore.h"

using namespace std::chrono_literals;

/// What the user, and the end of the program, ask of the queue's jobs.
namespace kestrel {

namespace {

constexpr auto cancelPatience = 100ms;
constexpr auto endPatience = 1s;

}  // namespace

void JobQueue::start(const QList<JobId> &ids)
{
    m_isEnding = false;
    for (const JobId id : ids) {
        Entry *entry = find(id);
        if (!entry || (entry->record.state != JobState::Ready && !isEnded(entry->record.state)))
            continue;
        JobRecord &record = entry->record;
        record.outcome = {};
        record.started = record.ended = {};
        record.progress = {};
        record.note = {};
        beginWaiting(*entry);
        tell(*entry);
    }
    schedule();
}

void JobQueue::cancel(const QList<JobId> &ids, Waiting waiting)
{
    QList<JobId> active, ended;
    QSet<QString> modules;
    for (const JobId id : ids) {
        Entry *entry = find(id);
        if (entry && entry->run) {
            active.append(id);
        } else if (entry && entry->record.state == JobState::Waiting) {
            modules.insert(entry->record.module);
            endWaiting(*entry);
            if (waiting == Waiting::IsCancelled) {
                entry->record.state = entry->record.outcome.state = JobState::Cancelled;
                entry->record.ended = QDateTime::currentDateTimeUtc();
                ended.append(id);
            }
            tell(*entry);
        }
    }
    for (const JobId id : std::as_const(ended))
        emit this->ended(id);
    // Now that none of them waits any more to take the place of what ends.
    for (const JobId id : std::as_const(active)) {
        if (Entry *entry = find(id); entry && entry->run) {
            entry->run->isCancelled = true;
            entry->run->job().cancel();
        }
    }
    if (!active.isEmpty())
        later(cancelPatience, [this, active] { endCancelled(active); });
    for (const QString &module : std::as_const(modules))
        settleIdle(module);
}

/// Those that did not end as they were asked to.
void JobQueue::endCancelled(const QList<JobId> &ids)
{
    for (const JobId id : ids) {
        if (Entry *entry = find(id); entry && entry->run && entry->run->isCancelled) {
            entry->run->end();
            finish(id, {.state = JobState::Cancelled});
        }
    }
}

void JobQueue::stop(const QList<JobId> &ids)
{
    for (const JobId id : ids) {
        Entry *entry = find(id);
        if (!entry || !entry->run || entry->record.state == JobState::Stopping)
            continue;
        if (entry->record.state == JobState::Paused)
            entry->run->setPaused(false);
        entry->record.state = JobState::Stopping;
        tell(*entry);
        if (entry = find(id); entry && entry->run)
            entry->run->job().stop();
    }
}

void JobQueue::setPaused(const QList<JobId> &ids, bool paused)
{
    for (const JobId id : ids) {
        Entry *entry = find(id);
        const JobState from = paused ? JobState::Running : JobState::Paused;
        if (!entry || !entry->run || entry->record.state != from || !entry->run->job().canPause())
            continue;
        entry->run->setPaused(paused);
        moduleOf(*entry).batch.restartClock();
        entry->record.state = paused ? JobState::Paused : JobState::Running;
        tell(*entry);
    }
}

void JobQueue::interruptAll()
{
    m_isEnding = true;
    interrupt(m_active);
}

void JobQueue::interrupt(QList<JobId> ids)
{
    // Stored first: ending the tools may take its time, and this may be the program's last moment.
    for (const JobId id : ids) {
        Entry &entry = *find(id);
        entry.record.state = JobState::Interrupted;
        entry.record.outcome = {.state = JobState::Interrupted};
        entry.record.placing.reset();
        leaveLane(entry);
        entry.run->job().disconnect(this);
        if (m_store && entry.run->isToBeRemoved)
            m_store->remove({id});
        else
            store(entry);
    }
    for (const JobId id : ids)
        find(id)->run->end();
    if (m_store)
        m_store->flush(endPatience);
    for (const JobId id : ids) {
        if (!find(id))
            continue;
        const bool isToBeRemoved = std::exchange(find(id)->run, nullptr)->isToBeRemoved;
        emit changed(id);
        emit ended(id);
        if (isToBeRemoved)
            remove({id});
    }
}

}  // namespace kestrel
