#include "JobQueue.h"

#include "JobRun.h"
#include "JobStore.h"
#include "StoredJob.h"
#include "foundation/Queues.h"

#include <QPointer>
#include <QThread>

#include <algorithm>
#include <mutex>
#include <utility>

namespace kestrel {

JobQueue::JobQueue(JobStore *store, QObject *parent, DiskSpaceFunction diskSpace,
                   std::chrono::milliseconds blockedInterval)
    : QObject(parent),
      m_store(store),
      m_diskSpace(std::move(diskSpace)),
      m_blockedInterval(blockedInterval)
{
    m_lanes[size_t(Lane::Encode)].limit = std::max(1, QThread::idealThreadCount() / 4);
    m_lanes[size_t(Lane::Net)].limit = 3;
}

JobQueue::~JobQueue()
{
    const QSignalBlocker quiet(this);
    interruptAll();
}

JobQueue::Entry *JobQueue::find(JobId id)
{
    const auto found = m_entries.find(id);
    return found == m_entries.end() ? nullptr : &found->second;
}

const JobQueue::Entry *JobQueue::find(JobId id) const
{
    const auto found = m_entries.find(id);
    return found == m_entries.end() ? nullptr : &found->second;
}

void JobQueue::store(const Entry &entry)
{
    if (m_store)
        m_store->put(entry.record, m_modules[entry.record.module].order.positionOf(entry.record.id));
}

void JobQueue::tell(Entry &entry)
{
    store(entry);
    emit changed(entry.record.id);
}

void JobQueue::later(std::chrono::milliseconds delay, std::function<void()> task)
{
    foundation::queue::afterMain(delay, [self = QPointer(this), task = std::move(task)] {
        if (self)
            task();
    });
}

void JobQueue::load()
{
    if (!m_store)
        return;
    std::map<QString, QList<JobStore::Row>> rows;
    for (JobStore::Row &row : m_store->load()) {
        if (!find(row.record.id))
            rows[row.record.module].append(std::move(row));
    }
    for (auto &[name, ofModule] : rows) {
        JobOrder &order = m_modules[name].order;
        emit aboutToInsert(name, int(order.ids().size()), int(ofModule.size()));
        for (JobStore::Row &row : ofModule) {
            const JobId id = row.record.id;
            order.append(id, row.position);
            m_entries[id].record = std::move(row.record);
            m_lastId = std::max(m_lastId, id);
        }
        emit inserted(name);
    }
    lookForOutputs();
}

/// What is found on a thread of its own, and fetched from there.
struct JobQueue::OutputLook {
    std::mutex mutex;
    QList<JobRecord> others;  ///< that are gone, or back
    bool hasEnded = false;
};

void JobQueue::lookForOutputs()
{
    QList<JobRecord> made;
    for (const JobId id : idsIn({JobState::Done, JobState::DoneWithProblems}))
        made.append(*record(id));
    if (made.isEmpty() || std::exchange(m_isLookingForOutputs, true))
        return;
    const auto look = std::make_shared<OutputLook>();
    foundation::queue::asyncDetached([look, made] {
        for (const JobRecord &record : made) {
            if (outputsAreThere(record) != saysOutputsGone(record))
                continue;
            const std::lock_guard lock(look->mutex);
            look->others.append(record);
        }
        const std::lock_guard lock(look->mutex);
        look->hasEnded = true;
    });
    fetchGone(look, std::chrono::milliseconds(20));
}

/// Not stored: the disk may be back.
void JobQueue::fetchGone(const std::shared_ptr<OutputLook> &look, std::chrono::milliseconds delay)
{
    constexpr std::chrono::milliseconds longest = std::chrono::seconds(2);
    later(delay, [this, look, next = std::min(2 * delay, longest)] {
        std::unique_lock lock(look->mutex);
        const QList<JobRecord> found = std::exchange(look->others, {});
        const bool hasEnded = look->hasEnded;
        lock.unlock();
        for (const JobRecord &looked : found) {
            Entry *entry = find(looked.id);
            if (!entry || entry->record.state != looked.state || entry->record.outcome != looked.outcome)
                continue;  // it has been started again
            if (saysOutputsGone(entry->record))
                setOutputsThere(entry->record);
            else
                setOutputsGone(entry->record);
            emit changed(looked.id);
        }
        m_isLookingForOutputs = !hasEnded;
        if (!hasEnded)
            fetchGone(look, next);
    });
}

JobId JobQueue::add(JobRecord record)
{
    const JobId id = m_store ? m_store->nextId() : m_lastId + 1;
    const QString name = record.module;
    m_lastId = std::max(m_lastId, id);
    record.id = id;
    if (!record.added.isValid())
        record.added = QDateTime::currentDateTimeUtc();
    JobOrder &order = m_modules[name].order;
    emit aboutToInsert(name, int(order.ids().size()), 1);
    order.append(id);
    Entry &entry = m_entries[id];
    entry.record = std::move(record);
    store(entry);
    emit inserted(name);
    return id;
}

const JobRecord *JobQueue::record(JobId id) const
{
    const Entry *entry = find(id);
    return entry ? &entry->record : nullptr;
}

const QList<JobId> &JobQueue::order(const QString &module) const
{
    static const QList<JobId> none;
    const auto found = m_modules.find(module);
    return found == m_modules.end() ? none : found->second.order.ids();
}

int JobQueue::rowOf(JobId id) const
{
    const Entry *entry = find(id);
    return entry ? m_modules.at(entry->record.module).order.rowOf(id) : -1;
}

void JobQueue::change(JobId id, const std::function<void(JobRecord &)> &edit)
{
    Entry *entry = find(id);
    if (!entry || isActive(entry->record.state))
        return;
    JobRecord edited = entry->record;
    edit(edited);
    edited.id = id;
    edited.module = entry->record.module;
    if (!isBeforeStart(edited.state))
        edited.state = entry->record.state;
    const bool waited = entry->record.state == JobState::Waiting;
    // What it weighs and needs may be different now.
    if (waited)
        endWaiting(*entry);
    entry->record = std::move(edited);
    if (waited && entry->record.state == JobState::Waiting)
        beginWaiting(*entry);
    const QString module = entry->record.module;
    tell(*entry);
    if (waited) {
        schedule();
        settleIdle(module);
    }
}

void JobQueue::remove(const QList<JobId> &ids)
{
    QList<JobId> active;
    std::map<QString, QList<JobId>> others;
    for (const JobId id : ids) {
        Entry *entry = find(id);
        if (!entry)
            continue;
        if (entry->run) {
            entry->run->isToBeRemoved = true;
            active.append(id);
        } else {
            others[entry->record.module].append(id);
        }
    }
    for (const auto &[name, ofModule] : others)
        removeRows(m_modules[name], name, ofModule);
    cancel(active);
    for (const auto &[name, ofModule] : others)
        settleIdle(name);
}

void JobQueue::removeRows(Module &module, const QString &name, const QList<JobId> &ids)
{
    const QList<JobOrder::Range> ranges = module.order.rangesOf(ids);
    if (m_store)
        m_store->remove(ids);
    // From the back: the rows in front stay where they are.
    for (auto range = ranges.crbegin(); range != ranges.crend(); ++range) {
        emit aboutToRemove(name, range->first, range->count);
        for (const JobId id : module.order.ids().mid(range->first, range->count)) {
            if (Entry *entry = find(id); entry->record.state == JobState::Waiting)
                endWaiting(*entry);
            m_entries.erase(id);
        }
        module.order.remove(*range);
        module.firstWaiting = std::min(module.firstWaiting, range->first);
        emit removed(name);
    }
}

void JobQueue::move(const QList<JobId> &ids, JobId before)
{
    const auto first = std::find_if(ids.begin(), ids.end(), [this](JobId id) { return find(id); });
    if (first == ids.end())
        return;
    const QString name = find(*first)->record.module;
    Module &module = m_modules[name];
    const QList<JobOrder::Range> ranges = module.order.rangesOf(ids);
    int to = module.order.rowOf(before);
    if (to < 0)
        to = int(module.order.ids().size());
    int countBefore = 0, count = 0;
    for (const JobOrder::Range &range : ranges) {
        if (range.first <= to && to < range.first + range.count)
            to = range.first + range.count;  // in front of one that is moved itself
        countBefore += range.first < to ? range.count : 0;
        count += range.count;
    }
    if (ranges.size() == 1 && (to == ranges.first().first || to == ranges.first().first + count))
        return;
    moveRanges(name, ranges, to);
    module.firstWaiting = 0;
    for (const JobId id : module.order.settlePositions({to - countBefore, count})) {
        if (m_store)
            m_store->place(id, module.order.positionOf(id));
    }
}

void JobQueue::moveRanges(const QString &name, const QList<JobOrder::Range> &ranges, int to)
{
    constexpr int maximumSteps = 16;  // beyond that a view is quicker with one change of everything
    JobOrder &order = m_modules[name].order;
    if (ranges.size() > maximumSteps) {
        emit aboutToReorder(name);
        order.gather(ranges, to);
        emit reordered(name);
        return;
    }
    const auto step = [&](JobOrder::Range range, int target) {
        if (target == range.first || target == range.first + range.count)
            return;
        emit aboutToMove(name, range.first, range.count, target);
        order.move(range, target);
        emit moved(name);
    };
    const auto firstBehind =
        std::find_if(ranges.begin(), ranges.end(), [to](const JobOrder::Range &range) { return range.first >= to; });
    int target = to;
    for (auto range = firstBehind; range != ranges.begin();) {
        --range;
        step(*range, target);
        target -= range->count;
    }
    target = to;
    for (auto range = firstBehind; range != ranges.end(); ++range) {
        step(*range, target);
        target += range->count;
    }
}

QList<JobId> JobQueue::idsIn(std::initializer_list<JobState> states, const QString &module) const
{
    QList<JobId> ids;
    for (const auto &[name, ofModule] : m_modules) {
        if (!module.isNull() && name != module)
            continue;
        for (const JobId id : ofModule.order.ids()) {
            if (std::find(states.begin(), states.end(), find(id)->record.state) != states.end())
                ids.append(id);
        }
    }
    return ids;
}

bool JobQueue::hasWork(const QString &module) const
{
    return isStarting(module) || std::any_of(m_modules.begin(), m_modules.end(), [&module](const auto &row) {
               return (module.isNull() || row.first == module) && !row.second.batch.isIdle();
           });
}

JobProgress JobQueue::overallProgress(const QString &module) const
{
    JobProgress all;
    double total = 0, finished = 0;
    bool canTell = false;
    for (const auto &[name, ofModule] : m_modules) {
        const JobBatch &batch = ofModule.batch;
        if (batch.isIdle() || (!module.isNull() && name != module))
            continue;
        const JobProgress progress = batch.progress();
        all.seconds += progress.seconds;
        all.bytes += progress.bytes;
        all.bytesPerSecond += progress.bytesPerSecond;
        all.remainingSeconds = std::max(all.remainingSeconds, progress.remainingSeconds);
        total += batch.totalWeight();
        finished += batch.finishedWeight();
        canTell = canTell || batch.canTell();
    }
    if (canTell)
        all.fraction = std::clamp(finished / total, 0.0, 1.0);
    return all;
}

}  // namespace kestrel
