// What the tests of the store need another process for: to write at the same time, to be killed, to hold jobs. The
// arguments: the task, the store's file, its library, and what the task takes.

#include "jobs/JobStore.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

JobRecord record(JobStore &store, JobState state)
{
    JobRecord record;
    record.id = store.nextId();
    record.module = u"marlin"_s;
    record.title = u"film %1"_s.arg(record.id);
    record.plan = {{u"version"_s, 1}, {u"preset"_s, u"mp4"_s}};
    record.state = state;
    return record;
}

void say(const QString &text)
{
    QTextStream(stdout) << text << Qt::endl;
}

/// <count>: adds so many and says their ids.
int add(JobStore &store, int count)
{
    for (int i = 0; i < count; ++i) {
        const JobRecord added = record(store, JobState::Ready);
        store.put(added, double(added.id));
        say(QString::number(added.id));
    }
    return store.flush() ? 0 : 1;
}

/// Has one that runs, one that waits and one that is ready, until its input ends.
int hold(JobStore &store)
{
    for (const JobState state : {JobState::Running, JobState::Waiting, JobState::Ready}) {
        const JobRecord held = record(store, state);
        store.put(held, double(held.id));
    }
    say(store.flush() ? u"held"_s : u"failed"_s);
    QTextStream(stdin).readLine();
    return 0;
}

}  // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::unique_ptr<JobStore> store = openJobStore(arguments.value(2), arguments.value(3));
    if (!store)
        return 2;
    const QString task = arguments.value(1);
    return task == "add"_L1 ? add(*store, arguments.value(4).toInt()) : hold(*store);
}
