#include "JobQueue.h"
#include "JobRun.h"
#include "JobStore.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

/// What the user, and the end of the program, ask of the queue's jobs.
namespace kestrel {

namespace {

constexpr auto cancelPatience = 100ms;
constexpr auto endPatience = 1s;
constexpr qint64 longestTurnMs = 5;

}  // namespace

void JobQueue::start(const QList<JobId> &ids)
{
    m_isEnding = false;
    m_toStart.append(ids);
    startSome();
}

/// As many as a turn of the event loop has room for, and one at least.
void JobQueue::startSome()
{
    QElapsedTimer turn;
    turn.start();
    bool isFirst = true;
    while (!m_toStart.isEmpty() && (std::exchange(isFirst, false) || turn.elapsed() < longestTurnMs)) {
        Entry *entry = find(m_toStart.takeFirst());
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
    if (m_toStart.isEmpty()) {
        QStringList modules;
        for (const auto &[name, ofModule] : m_modules)
            modules.append(name);
        for (const QString &module : std::as_const(modules))
            settleIdle(module);
    } else if (!std::exchange(m_isStartingLater, true)) {
        later(0ms, [this] {
            m_isStartingLater = false;
            startSome();
        });
    }
}

bool JobQueue::isStarting(const QString &module) const
{
    return std::ranges::any_of(m_toStart, [&](JobId id) {
        const Entry *entry = find(id);
        return entry && (module.isNull() || entry->record.module == module);
    });
}

void JobQueue::cancel(const QList<JobId> &ids, Waiting waiting)
{
    QList<JobId> active, ended;
    QSet<JobId> unbegun;
    if (const QSet<JobId> all(ids.begin(), ids.end()); !m_toStart.isEmpty()) {
        unbegun = QSet<JobId>(m_toStart.begin(), m_toStart.end()).intersect(all);
        m_toStart.removeIf([&](JobId id) { return all.contains(id); });
    }
    QSet<QString> modules;
    for (const JobId id : ids) {
        Entry *entry = find(id);
        const bool waits = entry && entry->record.state == JobState::Waiting;
        if (entry && entry->run) {
            active.append(id);
        } else if (waits || (entry && waiting == Waiting::IsCancelled && unbegun.contains(id))) {
            modules.insert(entry->record.module);
            if (waits)
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
    m_toStart.clear();
    interrupt(m_active);
}

void JobQueue::interrupt(QList<JobId> ids)
{
    // Stored first: ending the tools may take its time, and this may be the program's last moment.
    for (const JobId id : ids) {
        Entry &entry = *find(id);
        const bool isPlaced = std::exchange(entry.record.placing, std::nullopt).has_value();
        entry.record.state = JobState::Interrupted;
        entry.record.outcome = {.state = JobState::Interrupted};
        leaveLane(entry);
        entry.run->job().disconnect(this);
        if (m_store && entry.run->isToBeRemoved) {
            m_store->remove({id});
        } else if (!isPlaced) {  // what is getting its name may still get it: the store knows both, for the next start
            store(entry);
        }
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
