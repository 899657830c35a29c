#include "JobRunner.h"

#include "CliSession.h"
#include "JobReporter.h"
#include "foundation/Bundle.h"
#include "jobs/DesktopServices.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ProductInformation.h"

#include <QEventLoop>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

ExitStatus runJobs(CliSession &session, const QList<JobId> &ids, const Surroundings &surroundings,
                   SignalMeaning meaning, const QList<JobId> &begun)
{
    JobQueue &queue = session.queue();
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

    DesktopServices desktop(tarnwell::productBundle().identifier());
    const QString why = tarnwell::AppLocalizedString(u"Jobs are running."_s);
    QObject::connect(&queue, &JobQueue::changed, &loop, [&] {
        desktop.setAwake(!queue.idsIn({JobState::Running, JobState::Paused, JobState::Stopping}).isEmpty(), why);
        desktop.setScreenOn(queue.isLaneActive(Lane::Capture), why);
    });

    QObject::connect(&session.terminationSignals(), &foundation::TerminationSignals::received, &loop, [&] {
        const bool stops = meaning == SignalMeaning::Stop && !isInterrupted;
        isInterrupted = true;
        if (!stops)
            return queue.cancel(open, JobQueue::Waiting::IsCancelled);
        queue.stop(open);
        // What has not begun has nothing to end with.
        QList<JobId> waiting = queue.idsIn({JobState::Ready, JobState::Waiting});
        waiting.removeIf([&](JobId id) { return !open.contains(id); });
        queue.cancel(waiting, JobQueue::Waiting::IsCancelled);
    });

    session.keepJobs();
    const QList<JobId> all = open;
    for (const JobId id : all) {
        const JobState state = queue.record(id)->state;
        if (state == JobState::Unusable || (begun.contains(id) && isEnded(state)))
            take(id);
    }
    QList<JobId> toStart = open;
    toStart.removeIf([&](JobId id) { return begun.contains(id); });
    queue.start(toStart);
    if (!open.isEmpty())
        loop.exec();
    return isInterrupted && meaning == SignalMeaning::Cancel ? InterruptedBySignal : reporter.status();
}

}  // namespace kestrel::cli
