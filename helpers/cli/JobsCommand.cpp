#include "JobsCommand.h"

#include "JobReporter.h"
#include "jobs/JobStore.h"
#include "jobs/JobText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

ExitStatus runJobsCommand(const Surroundings &surroundings, const QStringList &arguments)
{
    if (!arguments.isEmpty())
        return wrongUsage(u"\"jobs\" takes no arguments."_s);
    const std::unique_ptr<JobStore> store = openJobStore(jobStorePath());
    if (!store)
        return SomeFailed;
    for (const auto &[record, position] : store->load()) {
        if (surroundings.json)
            printLine(QJsonDocument(QJsonObject{{u"job"_s, record.id},
                                                {u"module"_s, record.module},
                                                {u"title"_s, record.title},
                                                {u"source"_s, record.source},
                                                {u"state"_s, jobStateName(record.state)},
                                                {u"outputs"_s, QJsonArray::fromStringList(record.outcome.outputs)}})
                          .toJson(QJsonDocument::Compact));
        else
            printLine(shown(u"%1  %2  %3  %4"_s.arg(QString::number(record.id), record.module.leftJustified(6),
                                                    record.title, jobStateText(record)))
                          .toUtf8());
    }
    return AllDone;
}

}  // namespace kestrel::cli
