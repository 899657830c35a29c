#include "JobsCommand.h"

#include "AllRecipes.h"
#include "CliSession.h"
#include "JobReporter.h"
#include "JobRunner.h"
#include "jobs/JobText.h"
#include "modules/heron/DiscImageJob.h"
#include "modules/heron/DiscRecipe.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

ExitStatus failed(const QString &sentence)
{
    std::fprintf(stderr, "kestrel-cli: %s\n", qUtf8Printable(shown(sentence)));
    return SomeFailed;
}

void print(const ListedJob &job, bool asJson)
{
    const JobRecord &record = job.record;
    if (asJson) {
        QJsonObject object{{u"job"_s, record.id},
                           {u"module"_s, record.module},
                           {u"title"_s, record.title},
                           {u"source"_s, record.source},
                           {u"state"_s, jobStateName(record.state)},
                           {u"outputs"_s, QJsonArray::fromStringList(record.outcome.outputs)}};
        if (job.holder != 0)
            object[u"process"_s] = job.holder;
        printLine(QJsonDocument(object).toJson(QJsonDocument::Compact));
        return;
    }
    const QString holder = job.holder != 0 ? u"  [%1]"_s.arg(job.holder) : QString();
    printLine(shown(QString::number(record.id) + u"  "_s + record.module.leftJustified(6) + u"  "_s + record.title +
                    u"  "_s + jobStateText(record) + holder)
                  .toUtf8());
}

/// What the store holds, as it is now, and which of it is meant.
struct Choice {
    QList<ListedJob> jobs;
    QList<JobId> named;

    const ListedJob *find(JobId id) const
    {
        const auto found =
            std::find_if(jobs.begin(), jobs.end(), [id](const auto &job) { return job.record.id == id; });
        return found == jobs.end() ? nullptr : &*found;
    }
    bool isMeant(const ListedJob &job, bool withoutName) const
    {
        return named.isEmpty() ? withoutName && job.holder == 0 : named.contains(job.record.id);
    }
};

foundation::Result<Choice> choiceOf(const QList<JobId> &named)
{
    auto jobs = listJobs(jobStorePath());
    if (!jobs)
        return foundation::Failure{jobs.reason()};
    Choice choice{*std::move(jobs), named};
    for (const JobId id : named) {
        const ListedJob *job = choice.find(id);
        if (!job)
            return foundation::Failure{u"There is no job %1."_s.arg(id)};
        if (job->holder != 0)
            return foundation::Failure{u"Job %1 is with process %2."_s.arg(id).arg(job->holder)};
    }
    return choice;
}

ExitStatus list(bool asJson)
{
    const auto choice = choiceOf({});
    if (!choice)
        return failed(choice.reason());
    for (const ListedJob &job : choice->jobs)
        print(job, asJson);
    return AllDone;
}

ExitStatus retry(const Surroundings &surroundings, const Choice &choice)
{
    CliSession session(ModuleSettingVideo);
    JobQueue &queue = session.queue();
    queue.load();
    const AllRecipes recipes(queue);
    // A recording does not begin anew, but what there is of it may be made a film.
    const QList<JobId> recoverable = addRecoveries(queue);
    QList<JobId> ids;
    for (const ListedJob &job : choice.jobs) {
        const JobRecord &listed = job.record;
        const bool isOpen =
            listed.state == JobState::Interrupted || (listed.state == JobState::Ready && job.hasLostOwner);
        const JobRecord *record = queue.record(listed.id);
        if (!record || !recipes.knows(listed.module) || !choice.isMeant(job, isOpen))
            continue;
        if (listed.module != ploverJobs)
            ids.append(listed.id);
        else if (recoverable.contains(listed.id))
            ids.append(listed.id);
        else if (!choice.named.isEmpty())
            return failed(u"Nothing is left of the recording that was job %1."_s.arg(listed.id));
    }
    for (const JobId id : ids) {
        if (const JobState state = queue.record(id)->state; state == JobState::Checking || state == JobState::Unusable)
            queue.change(id, [](JobRecord &record) { record.state = JobState::Ready; });
    }
    return ids.isEmpty() ? AllDone : runJobs(session, ids, surroundings);
}

ExitStatus clear(const Choice &choice)
{
    const std::unique_ptr<JobStore> store = openJobStore(jobStorePath());
    if (!store)
        return failed(u"The list of jobs cannot be written, %1"_s.arg(jobStorePath()));
    QList<JobId> ids;
    QSet<QString> removed, kept;  // broken-off copies of discs, which go with the last of their jobs
    for (const ListedJob &job : choice.jobs) {
        const JobState state = job.record.state;
        const bool isFinished = state == JobState::Done || state == JobState::DoneWithProblems ||
                                state == JobState::Cancelled || state == JobState::Unusable;
        const bool isMeant = choice.isMeant(job, isFinished);
        if (isMeant)
            ids.append(job.record.id);
        if (job.record.module == heronJobs)
            (isMeant ? removed : kept).insert(brokenOffImage(job.record));
    }
    store->remove(ids);
    if (!store->flush())
        return failed(u"The list of jobs could not be written, %1"_s.arg(jobStorePath()));
    for (const QString &path : removed.subtract(kept)) {
        if (!path.isNull())
            removeBrokenOffImage(path);
    }
    return AllDone;
}

}  // namespace

ExitStatus runJobsCommand(const Surroundings &surroundings, const QStringList &arguments)
{
    const QString verb = arguments.value(0);
    if (verb == "--help"_L1 || verb == "-h"_L1) {
        printLine(
            "Usage: kestrel-cli jobs\n"
            "       kestrel-cli jobs retry [ID…]   runs these again, or all that were interrupted\n"
            "       kestrel-cli jobs clear [ID…]   takes these from the list, or all that is finished; files stay");
        return AllDone;
    }
    if (arguments.isEmpty())
        return list(surroundings.json);
    if (verb != "retry"_L1 && verb != "clear"_L1)
        return wrongUsage(u"\"jobs\" takes no \"%1\", only retry or clear."_s.arg(verb));
    QList<JobId> named;
    for (const QString &text : arguments.mid(1)) {
        bool isNumber = false;
        named.append(text.toLongLong(&isNumber));
        if (!isNumber || named.last() <= 0)
            return wrongUsage(u"\"%1\" is no job; \"kestrel-cli jobs\" lists them with their numbers."_s.arg(text));
    }
    const auto choice = choiceOf(named);
    if (!choice)
        return failed(choice.reason());
    return verb == "retry"_L1 ? retry(surroundings, *choice) : clear(*choice);
}

}  // namespace kestrel::cli
