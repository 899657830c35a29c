#include "JobRunner.h"

#include "JobReporter.h"
#include "foundation/TerminationSignals.h"

#include <QEventLoop>

namespace kestrel::cli {

ExitStatus runJobs(JobQueue &queue, const QList<JobId> &ids, const Surroundings &surroundings, SignalMeaning meaning)
{
    JobReporter reporter(surroundings, ids.size());
    QEventLoop loop;
    QList<JobId> open = ids;
    bool isInterrupted = false;
    const auto take = [&](JobId id) {
        if (!open.removeOne(id))
            return;
        reporter.result(ids.indexOf(id) + 1, *queue.record(id));
        if (open.isEmpty())
            loop.quit();
    };
    QObject::connect(&queue, &JobQueue::changed, &loop, [&](JobId id) {
        const JobRecord *record = queue.record(id);
        if (open.contains(id) && record && (isActive(record->state) || !record->blocked.isEmpty()))
            reporter.progress(ids.indexOf(id) + 1, *record);
    });
    QObject::connect(&queue, &JobQueue::ended, &loop, take);

    const foundation::TerminationSignals signalsOfTheSystem;
    QObject::connect(&signalsOfTheSystem, &foundation::TerminationSignals::received, &loop, [&] {
        if (meaning == SignalMeaning::Stop && !isInterrupted) {
            isInterrupted = true;
            queue.stop(open);
            return;
        }
        isInterrupted = true;
        queue.cancel(open);
        // What only waited is ready again and has no end of its own.
        QList<JobId> waiting = open;
        waiting.removeIf([&](JobId id) { return isActive(queue.record(id)->state); });
        for (const JobId id : waiting)
            open.removeOne(id);
        if (open.isEmpty())
            loop.quit();
    });

    const QList<JobId> all = open;
    for (const JobId id : all) {
        if (queue.record(id)->state == JobState::Unusable)
            take(id);
    }
    queue.start(open);
    if (!open.isEmpty())
        loop.exec();
    return isInterrupted && meaning == SignalMeaning::Cancel ? InterruptedBySignal : reporter.status();
}

}  // namespace kestrel::cli
