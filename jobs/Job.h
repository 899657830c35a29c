#pragma once

#include "JobRecord.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace kestrel {

/// The run of a job. Made for one run and used once; ending the object ends its tools at once and removes what it
/// wrote, but for an output that is getting its name, which keeps it. Main thread.
class Job : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void start() = 0;
    /// Ends with what there is, such as a recording; by default the same as `cancel`.
    virtual void stop() { cancel(); }
    /// Ends all tools and removes what was written; `finished` follows within 100 ms.
    virtual void cancel() = 0;
    virtual bool canPause() const { return false; }
    /// Only where it can.
    virtual void setPaused(bool paused) { Q_UNUSED(paused); }

    /// Keeps record of what is about to get its name, with the outcome as it will be but for `outputs`, and calls
    /// `then` when that cannot get lost any more.
    using Notary = std::function<void(const JobOutcome &outcome, const QString &partPath, std::function<void()> then)>;
    void setNotary(Notary notary) { m_notary = std::move(notary); }

signals:
    void progressed(const kestrel::JobProgress &progress);
    /// Something that the user should know while it runs; told in the row.
    void noted(const kestrel::tarnwell::Sentence &note);
    /// Once, later than `start` returns. Nothing follows.
    void finished(const kestrel::JobOutcome &outcome);

protected:
    /// Calls `then`, unless the job is gone by then, when what is about to be placed is on record; at once where nobody
    /// keeps any.
    void beforePlacing(const JobOutcome &outcome, const QString &partPath, std::function<void()> then)
    {
        if (!m_notary)
            return then();
        m_notary(outcome, partPath, [self = QPointer(this), then = std::move(then)] {
            if (self)
                then();
        });
    }

private:
    Notary m_notary;
};

/// What a job takes.
struct JobNeeds {
    Lane lane = Lane::Encode;
    qint64 bytes = 0;   ///< that its output will take in the record's folder, or an upper guess; 0 for not known
    double weight = 1;  ///< among the module's jobs, in whatever measure they share: seconds of film, bytes
};

/// How a module's jobs are run: all that the queue knows of a module.
class JobRecipe {
public:
    virtual ~JobRecipe() = default;

    /// Asked once whenever the job begins to wait.
    virtual JobNeeds needs(const JobRecord &record) const = 0;
    /// Null where it cannot be run; it has failed then.
    virtual std::unique_ptr<Job> makeJob(const JobRecord &record) = 0;
};

}  // namespace kestrel
