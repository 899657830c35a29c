#include "JobObstacle.h"
#include "JobQueue.h"
#include "JobRun.h"
#include "JobStore.h"

#include <QLocale>

#include <algorithm>

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr int maximumBlocked = 64;  ///< looked at in one lane, past those that wait for space

qint64 bytesStillNeeded(qint64 expectedBytes, const JobProgress &progress)
{
    const qint64 written = std::max(progress.bytes, qint64(double(expectedBytes) * progress.fraction.value_or(0)));
    return std::max<qint64>(0, expectedBytes - written);
}

/// Bytes that are left free beside the output.
qint64 reserveOn(const DiskSpace &disk)
{
    constexpr qint64 maximum = 200'000'000, share = 20;  // a stick is small
    return disk.total > 0 ? std::min(maximum, disk.total / share) : maximum;
}

}  // namespace

void JobQueue::setRecipe(const QString &module, JobRecipe *recipe)
{
    Module &ofModule = m_modules[module];
    if (!recipe) {
        QList<JobId> active;
        std::copy_if(m_active.begin(), m_active.end(), std::back_inserter(active),
                     [&](JobId id) { return find(id)->record.module == module; });
        interrupt(active);
    }
    const QList<JobId> waiting = idsIn({JobState::Waiting}, module);
    for (const JobId id : waiting)
        endWaiting(*find(id));
    ofModule.recipe = recipe;
    for (const JobId id : waiting)
        beginWaiting(*find(id));
    schedule();
}

void JobQueue::setLaneLimit(Lane lane, int jobs)
{
    m_lanes[size_t(lane)].limit = jobs;
    schedule();
}

/// What a recipe tells of a job is asked here and kept as long as it waits.
void JobQueue::beginWaiting(Entry &entry)
{
    Module &module = moduleOf(entry);
    JobRecord &record = entry.record;
    record.state = JobState::Waiting;
    entry.turn = ++m_lastTurn;
    double weight = 1;
    if (module.recipe) {
        const JobNeeds needs = module.recipe->needs(record);
        entry.lane = needs.lane;
        entry.expectedBytes = std::max<qint64>(0, needs.bytes);
        weight = needs.weight;
    }
    module.batch.add(record.id, weight);
    ++module.waiting[size_t(entry.lane)];
    module.firstWaiting = std::min(module.firstWaiting, module.order.rowOf(record.id));
    module.isBusy = true;
}

void JobQueue::endWaiting(Entry &entry)
{
    Module &module = moduleOf(entry);
    module.batch.withdraw(entry.record.id);
    --module.waiting[size_t(entry.lane)];
    entry.record.state = JobState::Ready;
    entry.record.blocked = {};
}

void JobQueue::schedule()
{
    m_isToScheduleAgain = m_isScheduling;
    if (m_isScheduling || m_isEnding)
        return;
    m_isScheduling = true;
    do {
        m_isToScheduleAgain = false;
        Spaces spaces;
        for (int lane = 0; lane < laneCount; ++lane)
            startIn(Lane(lane), spaces);
    } while (m_isToScheduleAgain);
    m_isScheduling = false;
}

void JobQueue::startIn(Lane lane, Spaces &spaces)
{
    const LaneUse &use = m_lanes[size_t(lane)];
    QSet<JobId> blocked;
    while (use.active < use.limit && blocked.size() < maximumBlocked) {
        Entry *entry = nextIn(lane, blocked);
        if (!entry)
            return;
        blocked.insert(entry->record.id);  // no harm where it runs: it does not wait any more
        if (isFree(*entry) && hasSpace(*entry, spaces))
            run(*entry);
    }
}

/// The first that waits in its module's order; among modules, the one that has waited longest.
JobQueue::Entry *JobQueue::nextIn(Lane lane, const QSet<JobId> &skipped)
{
    Entry *next = nullptr;
    for (auto &[name, module] : m_modules) {
        if (!module.recipe || module.waiting[size_t(lane)] == 0)
            continue;
        const QList<JobId> &ids = module.order.ids();
        for (int row = module.firstWaiting; row < ids.size(); ++row) {
            Entry *entry = find(ids.at(row));
            const bool isWaiting = entry->record.state == JobState::Waiting;
            if (!isWaiting && row == module.firstWaiting)
                ++module.firstWaiting;
            if (!isWaiting || entry->lane != lane || skipped.contains(entry->record.id))
                continue;
            if (!next || entry->turn < next->turn)
                next = entry;
            break;
        }
    }
    return next;
}

/// Whether its module has nothing against it; else the record says what.
bool JobQueue::isFree(Entry &entry)
{
    const auto *obstacles = dynamic_cast<const JobObstacle *>(moduleOf(entry).recipe);
    if (!obstacles)
        return true;
    QList<const JobRecord *> active;
    for (const JobId id : std::as_const(m_active)) {
        if (const JobRecord &other = find(id)->record; other.module == entry.record.module)
            active.append(&other);
    }
    const tarnwell::Sentence obstacle = obstacles->obstacle(entry.record, active);
    if (!obstacle.isEmpty())
        block(entry, obstacle);
    return obstacle.isEmpty();
}

/// The record says why it waits and is looked at again after a while.
void JobQueue::block(Entry &entry, const tarnwell::Sentence &reason)
{
    if (!m_isToLookAgain) {
        m_isToLookAgain = true;
        later(m_blockedInterval, [this] {
            m_isToLookAgain = false;
            schedule();
        });
    }
    if (entry.record.blocked == reason)
        return;
    entry.record.blocked = reason;
    emit changed(entry.record.id);
}

/// Where there is too little, the record says so.
bool JobQueue::hasSpace(Entry &entry, Spaces &spaces)
{
    const QString &folder = entry.record.folder;
    if (folder.isEmpty())
        return true;
    if (!spaces.contains(folder))
        spaces.insert(folder, m_diskSpace(folder));
    const std::optional<DiskSpace> space = spaces.value(folder);
    if (!space)
        return true;
    entry.device = space->device;
    qint64 available = space->available;
    for (const JobId id : std::as_const(m_active)) {
        const Entry &active = *find(id);
        if (active.device == space->device)
            available -= bytesStillNeeded(active.expectedBytes, active.record.progress);
    }
    const qint64 needed = entry.expectedBytes + reserveOn(*space);
    if (needed <= available)
        return true;
    block(entry, {"Waiting for space on the disk: %1 needed"_key,
                  {QLocale().formattedDataSize(needed, 1, QLocale::DataSizeSIFormat)}});
    return false;
}

void JobQueue::run(Entry &entry)
{
    const JobId id = entry.record.id;
    Module &module = moduleOf(entry);
    --module.waiting[size_t(entry.lane)];
    module.batch.begin(id);
    ++laneOf(entry).active;
    m_active.append(id);
    entry.record.state = JobState::Running;
    entry.record.blocked = {};
    entry.record.started = QDateTime::currentDateTimeUtc();
    entry.run = std::make_unique<JobRun>(module.recipe->makeJob(entry.record));
    if (!entry.run->hasJob())
        return finish(id, {});
    Job &job = entry.run->job();
    connect(&job, &Job::progressed, this, [this, id](const JobProgress &progress) { takeProgress(id, progress); });
    connect(&job, &Job::noted, this, [this, id](const tarnwell::Sentence &note) {
        find(id)->record.note = note;
        emit changed(id);
    });
    job.setNotary([this, id](const JobOutcome &outcome, const QString &partPath, std::function<void()> then) {
        notePlacing(id, outcome, partPath, std::move(then));
    });
    connect(&job, &Job::finished, this, [this, id](const JobOutcome &outcome) { finish(id, outcome); });
    job.start();
    if (const Entry *started = find(id); started && started->run)
        tell(entry);
}

/// So that a kill after the output got its name is no reason to make it again.
void JobQueue::notePlacing(JobId id, const JobOutcome &outcome, const QString &partPath, std::function<void()> then)
{
    Entry *entry = find(id);
    if (!m_store || !entry || !entry->run || !entry->run->hasJob())
        return then();
    entry->record.placing = PlacedPart::of(partPath);
    entry->record.outcome = outcome;
    store(*entry);
    m_store->whenWritten(std::move(then));
}

void JobQueue::takeProgress(JobId id, const JobProgress &progress)
{
    Entry &entry = *find(id);
    entry.record.progress = entry.run->taken(progress);
    moduleOf(entry).batch.setProgress(id, entry.record.progress);
    if (entry.run->isDue()) {
        entry.run->setShown();
        emit changed(id);
        return;
    }
    m_unshown.insert(id);
    if (!m_isShowingLater) {
        m_isShowingLater = true;
        later(std::chrono::milliseconds(JobRun::showInterval), [this] { showProgress(); });
    }
}

void JobQueue::showProgress()
{
    m_isShowingLater = false;
    QSet<JobId> early;
    for (const JobId id : std::exchange(m_unshown, {})) {
        Entry *entry = find(id);
        if (!entry || !entry->run)
            continue;
        if (!entry->run->isDue()) {
            early.insert(id);
            continue;
        }
        entry->run->setShown();
        emit changed(id);
    }
    m_unshown.unite(early);
    if (!m_unshown.isEmpty() && !m_isShowingLater) {
        m_isShowingLater = true;
        later(std::chrono::milliseconds(JobRun::showInterval / 2), [this] { showProgress(); });
    }
}

void JobQueue::leaveLane(Entry &entry)
{
    --laneOf(entry).active;
    m_active.removeOne(entry.record.id);
    m_unshown.remove(entry.record.id);
    entry.record.progress = {};
    entry.record.ended = QDateTime::currentDateTimeUtc();
    JobBatch &batch = moduleOf(entry).batch;
    const bool isWithdrawn = entry.record.state == JobState::Cancelled || entry.record.state == JobState::Interrupted;
    isWithdrawn ? batch.withdraw(entry.record.id) : batch.finish(entry.record.id);
}

void JobQueue::finish(JobId id, JobOutcome outcome)
{
    Entry &entry = *find(id);
    const bool isToBeRemoved = entry.run->isToBeRemoved;
    const bool isMade = outcome.state == JobState::Done || outcome.state == JobState::DoneWithProblems;
    if (entry.run->isCancelled && !isMade)
        outcome = {.state = JobState::Cancelled};
    else if (!isEnded(outcome.state))
        outcome.state = JobState::Failed;
    if (entry.run->hasJob())
        entry.run->job().disconnect(this);
    entry.run.reset();
    entry.record.state = outcome.state;
    entry.record.outcome = std::move(outcome);
    entry.record.placing.reset();
    leaveLane(entry);
    const QString module = entry.record.module;
    tell(entry);
    emit ended(id);
    if (isToBeRemoved)
        remove({id});
    schedule();
    settleIdle(module);
}

void JobQueue::settleIdle(const QString &module)
{
    Module &ofModule = m_modules[module];
    if (!ofModule.isBusy || !ofModule.batch.isIdle() || isStarting(module) || m_isEnding)
        return;
    ofModule.isBusy = false;
    ofModule.batch = {};
    emit idle(module);
}

}  // namespace kestrel
