#pragma once

#include "JobRecord.h"

#include "foundation/Result.h"

#include <chrono>
#include <functional>
#include <memory>

namespace kestrel {

/// What must survive a kill: the jobs of all modules, their order, options and outcome, in an SQLite file in Kestrel's
/// data folder, written by a thread of its own. Of what is done, failed or cancelled, the 20,000 that were added last
/// stay, or as many as take 128 MB. The window and `kestrel-cli` may have it open at the same time. A damaged file, or
/// one of a newer version, is moved aside ("jobs.sqlite.damaged-<time>") and a new one begun. Progress is not stored.
class JobStore {
public:
    virtual ~JobStore() = default;

    struct Row {
        JobRecord record;
        double position = 0;  ///< orders the jobs of a module
    };

    /// All jobs, in their order. What ran and whose owner has ended is Interrupted; what another process runs now is
    /// left out. Whether what was made is still there is not looked at: a disk may not answer.
    virtual QList<Row> load() = 0;
    /// An identifier that was never used, also by another process that has the store open.
    virtual JobId nextId() = 0;
    /// Writes a new or a changed job, in the background; the order of calls is kept. What could not be written is tried
    /// again with the next.
    virtual void put(const JobRecord &record, double position) = 0;
    /// In the same way, only where the job stands: the rest of it may be newer in the store, from another process.
    virtual void place(JobId id, double position) = 0;
    virtual void remove(const QList<JobId> &ids) = 0;
    /// Calls `then` on the main thread, later, when everything so far is on the disk or could not be written.
    virtual void whenWritten(std::function<void()> then);
    /// Waits until everything so far is on the disk. False where it could not be written, or not in that time.
    virtual bool flush(std::chrono::milliseconds patience = std::chrono::seconds(10)) = 0;
};

/// Opens the store, or begins one; its folder is the user's alone. Null only where not even a new file can be made, or
/// another process does not let it go for seconds; jobs are not kept then. What serves the file is a library of the
/// bundle, loaded here, so that the program's start does not pay for it.
std::unique_ptr<JobStore> openJobStore(const QString &path, const QString &libraryPath = {});
QString jobStorePath();  ///< of this user

struct ListedJob {
    JobRecord record;
    qint64 holder = 0;          ///< the living process that has it running or waiting; 0 for none
    bool hasLostOwner = false;  ///< it waited or ran in a process that has ended
};

/// For who only looks: all jobs in their order, as they are now, also those of other processes. Nothing is written,
/// moved aside or begun. A sentence in English where the file cannot be read, is damaged or of a newer version; no jobs
/// where there is none.
foundation::Result<QList<ListedJob>> listJobs(const QString &path, const QString &libraryPath = {});

}  // namespace kestrel
