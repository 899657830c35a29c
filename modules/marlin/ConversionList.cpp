#include "ConversionList.h"

#include "Conversion.h"
#include "jobs/RemainingTime.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString detailText(const JobRecord &record)
{
    const SourceSummary source = sourceSummary(record);
    QStringList parts;
    if (source.seconds)
        parts.append(durationText(*source.seconds));
    if (!source.text.isEmpty())
        parts.append(source.text);
    const auto plan = TranscodePlan::fromJson(record.plan);
    const QString target = plan ? u"→ "_s + plan->preset.name : QString();
    return QStringList{parts.join(u" · "_s), target}.join(u"  "_s).trimmed();
}

}  // namespace

ConversionList::ConversionList(JobQueue &queue, QObject *parent) : JobList(queue, marlinJobs.toString(), parent) {}

QVariant ConversionList::data(const QModelIndex &index, int role) const
{
    if (index.isValid() && index.column() == DetailColumn && role == Qt::DisplayRole)
        return detailText(recordAt(index.row()));
    return JobList::data(index, role);
}

}  // namespace kestrel
