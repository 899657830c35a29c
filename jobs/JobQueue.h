#pragma once

#include "Job.h"

#include <QHash>

#include <array>
#include <map>

namespace kestrel {

class JobStore;

/// All jobs of the program, of every module, and the running of them: takes work while it runs, in lanes, each of which
/// runs so many at once. Jobs are known by their ids and stand in an order of their own for each module. What must
/// survive is stored at each change. Never asks a user. Main thread.
class JobQueue : public QObject {
    Q_OBJECT
public:
    /// `store` may be null: nothing is kept then. It outlives the queue.
    explicit JobQueue(JobStore *store, QObject *parent = nullptr);
    /// Ends what runs, which will be Interrupted.
    ~JobQueue() override;

    /// Before any job of that module runs; the recipe outlives the queue or is taken out with null.
    void setRecipe(const QString &module, JobRecipe *recipe);
    void setLaneLimit(Lane lane, int jobs);  ///< 0 holds the lane; takes effect at once, what runs goes on
    /// Reads the store, once.
    void load();

    JobId add(JobRecord record);              ///< at the end of its module's order
    const JobRecord *record(JobId id) const;  ///< null where there is none; valid until the next change
    const QList<JobId> &order(const QString &module) const;
    /// Changes title, plan, folder, or state among Checking, Unusable and Ready; not of an active job.
    void change(JobId id, const std::function<void(JobRecord &)> &edit);
    /// Active ones are cancelled first.
    void remove(const QList<JobId> &ids);
    /// Puts them, as they stand, in front of `before`, or at the end for 0.
    void move(const QList<JobId> &ids, JobId before);

    /// Puts what is Ready or has ended into Waiting; the first of them run at once where their lanes have room.
    void start(const QList<JobId> &ids);
    /// What waits becomes Ready again, what runs is Cancelled within 100 ms.
    void cancel(const QList<JobId> &ids);
    void stop(const QList<JobId> &ids);  ///< ends active ones with what there is
    void setPaused(const QList<JobId> &ids, bool paused);
    /// For the end of the program: what runs ends at once and will be Interrupted, what waits stays so in the store.
    void interruptAll();

    /// Ids in any of the states; of all modules where `module` is null.
    QList<JobId> idsIn(std::initializer_list<JobState> states, const QString &module = {}) const;
    bool hasWork(const QString &module = {}) const;  ///< something waits or is active
    /// Of everything that waits or runs since the module was last idle, by weight of expected work; nothing where no
    /// job can tell.
    JobProgress overallProgress(const QString &module = {}) const;

signals:
    void aboutToInsert(const QString &module, int row, int count);
    void inserted(const QString &module);
    void aboutToRemove(const QString &module, int row, int count);
    void removed(const QString &module);
    void orderChanged(const QString &module);
    void changed(kestrel::JobId id);  ///< its state or anything else of its record, progress at most ten times a second
    void ended(kestrel::JobId id);    ///< after `changed`
    /// Nothing of the module waits or runs any more, after something did.
    void idle(const QString &module);
};

}  // namespace kestrel
