#include "DiscList.h"

#include "DiscRecipe.h"
#include "DiscTexts.h"

#include "jobs/RemainingTime.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString discDetailText(const JobRecord &record)
{
    const auto plan = DiscPlan::fromJson(record.plan);
    if (!plan)
        return {};
    QString target = plan->transcode.preset.name;
    for (const DiscWayRow &row : discWayRows()) {
        if (row.way == plan->way && plan->way != DiscWay::Rip)
            target = row.name.localized();
    }
    const QString length = plan->seconds > 0 ? durationText(plan->seconds) : QString();
    return QStringList{length, u"→ "_s + target}.join(u"  "_s).trimmed();
}

}  // namespace

DiscList::DiscList(JobQueue &queue, QObject *parent) : JobList(queue, heronJobs.toString(), parent) {}

QVariant DiscList::data(const QModelIndex &index, int role) const
{
    if (index.isValid() && index.column() == DetailColumn && role == Qt::DisplayRole)
        return discDetailText(recordAt(index.row()));
    return JobList::data(index, role);
}

}  // namespace kestrel
