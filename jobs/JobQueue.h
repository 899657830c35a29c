#pragma once

#include "DiskSpace.h"
#include "Job.h"
#include "JobBatch.h"
#include "JobOrder.h"

#include <QSet>

#include <array>
#include <chrono>
#include <map>
#include <unordered_map>

namespace kestrel {

class JobRun;
class JobStore;

/// All jobs of the program, of every module, and the running of them: takes work while it runs, in lanes, each of which
/// runs so many at once. Jobs are known by their ids and stand in an order of their own for each module. What must
/// survive is stored at each change. Never asks a user. Main thread.
class JobQueue : public QObject {
    Q_OBJECT
public:
    /// `store` may be null: nothing is kept then. It outlives the queue. What waits for space or a drive is looked at
    /// again after `blockedInterval`.
    explicit JobQueue(JobStore *store, QObject *parent = nullptr, DiskSpaceFunction diskSpace = diskSpaceOf,
                      std::chrono::milliseconds blockedInterval = std::chrono::seconds(10));
    /// Ends what runs, which will be Interrupted.
    ~JobQueue() override;

    /// Before any job of that module runs; the recipe outlives the queue or is taken out with null, which interrupts
    /// what runs.
    void setRecipe(const QString &module, JobRecipe *recipe);
    void setLaneLimit(Lane lane, int jobs);  ///< 0 holds the lane; takes effect at once, what runs goes on
    /// Reads the store, once and before anything is added. Nothing starts by itself: what waited when the program ended
    /// is Ready. What is Checking is the module's to go on with. Jobs that are done but whose outputs are gone say so
    /// soon afterwards.
    void load();

    /// The same look at what was made, again; for a window that comes back.
    void lookForOutputs();

    JobId add(JobRecord record);              ///< at the end of its module's order
    const JobRecord *record(JobId id) const;  ///< null where there is none; valid until the next change
    const QList<JobId> &order(const QString &module) const;
    int rowOf(JobId id) const;  ///< in its module's order; -1 where there is none
    /// Changes title, plan, folder, or state among Checking, Unusable and Ready; not of an active job.
    void change(JobId id, const std::function<void(JobRecord &)> &edit);
    /// Active ones are cancelled first and go when they have ended.
    void remove(const QList<JobId> &ids);
    /// Puts them, as they stand, in front of `before`, or at the end for 0.
    void move(const QList<JobId> &ids, JobId before);

    /// Puts what is Ready or has ended into Waiting; the first of them run at once where their lanes have room.
    /// Thousands begin to wait in later turns of the event loop.
    void start(const QList<JobId> &ids);
    /// What runs is Cancelled within 100 ms. What waits becomes Ready again, or is Cancelled as well.
    enum class Waiting { BecomesReady, IsCancelled };
    void cancel(const QList<JobId> &ids, Waiting waiting = Waiting::BecomesReady);
    void stop(const QList<JobId> &ids);  ///< ends active ones with what there is
    void setPaused(const QList<JobId> &ids, bool paused);
    /// For the end of the program: what runs ends at once and is Interrupted in the store before this returns, which
    /// takes a second at most; what waits stays so in the store. Nothing starts afterwards, and no module becomes idle.
    void interruptAll();

    /// Ids in any of the states; of all modules where `module` is null.
    QList<JobId> idsIn(std::initializer_list<JobState> states, const QString &module = {}) const;
    bool hasWork(const QString &module = {}) const;  ///< something waits or is active
    bool isLaneActive(Lane lane) const { return m_lanes[size_t(lane)].active > 0; }
    /// Of everything that waits or runs since the module was last idle, by weight of expected work; nothing where no
    /// job can tell.
    JobProgress overallProgress(const QString &module = {}) const;

signals:
    void aboutToInsert(const QString &module, int row, int count);
    void inserted(const QString &module);
    void aboutToRemove(const QString &module, int row, int count);
    void removed(const QString &module);
    /// Rows go in front of row `to`, as QAbstractItemModel::beginMoveRows has it.
    void aboutToMove(const QString &module, int row, int count, int to);
    void moved(const QString &module);
    /// Many rows from many places go to others at once.
    void aboutToReorder(const QString &module);
    void reordered(const QString &module);
    void changed(kestrel::JobId id);  ///< its state or anything else of its record, progress at most ten times a second
    void ended(kestrel::JobId id);    ///< after `changed`
    /// Nothing of the module waits or runs any more, after something did.
    void idle(const QString &module);

private:
    struct Entry {
        JobRecord record;
        std::unique_ptr<JobRun> run;  ///< while it is active
        Lane lane = Lane::Encode;     ///< this and the next two since it waits
        qint64 expectedBytes = 0;
        quint64 turn = 0;   ///< grows with each that began to wait
        QByteArray device;  ///< of its folder, while it is active
    };
    struct Module {
        JobRecipe *recipe = nullptr;
        JobOrder order;
        JobBatch batch;
        std::array<int, laneCount> waiting = {};
        int firstWaiting = 0;  ///< no row before this one waits
        bool isBusy = false;   ///< not yet told to be idle
    };
    struct LaneUse {
        int limit = 1;
        int active = 0;
    };
    using Spaces = QHash<QString, std::optional<DiskSpace>>;

    Entry *find(JobId id);
    const Entry *find(JobId id) const;
    Module &moduleOf(const Entry &entry) { return m_modules[entry.record.module]; }
    LaneUse &laneOf(const Entry &entry) { return m_lanes[size_t(entry.lane)]; }
    void store(const Entry &entry);
    void tell(Entry &entry);  ///< stores it and emits `changed`; the entry may be gone afterwards
    void later(std::chrono::milliseconds delay, std::function<void()> task);

    void removeRows(Module &module, const QString &name, const QList<JobId> &ids);
    struct OutputLook;
    void fetchGone(const std::shared_ptr<OutputLook> &look, std::chrono::milliseconds delay);
    void moveRanges(const QString &name, const QList<JobOrder::Range> &ranges, int to);

    void startSome();
    bool isStarting(const QString &module) const;
    void beginWaiting(Entry &entry);
    void endWaiting(Entry &entry);
    void schedule();
    void startIn(Lane lane, Spaces &spaces);
    Entry *nextIn(Lane lane, const QSet<JobId> &skipped);
    bool isFree(Entry &entry);
    bool hasSpace(Entry &entry, Spaces &spaces);
    void block(Entry &entry, const tarnwell::Sentence &reason);
    void run(Entry &entry);
    void takeProgress(JobId id, const JobProgress &progress);
    void notePlacing(JobId id, const JobOutcome &outcome, const QString &partPath, std::function<void()> then);
    void showProgress();
    void finish(JobId id, JobOutcome outcome);
    void endCancelled(const QList<JobId> &ids);
    void interrupt(QList<JobId> ids);
    void leaveLane(Entry &entry);
    void settleIdle(const QString &module);

    JobStore *m_store;
    DiskSpaceFunction m_diskSpace;
    std::chrono::milliseconds m_blockedInterval;
    std::unordered_map<JobId, Entry> m_entries;
    std::map<QString, Module> m_modules;
    std::array<LaneUse, laneCount> m_lanes;
    QList<JobId> m_active;
    QList<JobId> m_toStart;  ///< not Waiting yet
    QSet<JobId> m_unshown;   ///< progress that came too soon after the last
    JobId m_lastId = 0;
    quint64 m_lastTurn = 0;
    bool m_isScheduling = false;
    bool m_isToScheduleAgain = false;
    bool m_isStartingLater = false;
    bool m_isShowingLater = false;
    bool m_isToLookAgain = false;
    bool m_isLookingForOutputs = false;
    bool m_isEnding = false;
};

}  // namespace kestrel
