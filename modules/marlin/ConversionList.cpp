#include "ConversionList.h"

#include "Conversion.h"
#include "Conversions.h"
#include "jobs/JobText.h"
#include "jobs/RemainingTime.h"
#include "tarnwell/HoverText.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

/// By the stored members alone: reading whole plans for each row would make filtering ten thousand slow.
QString detailText(const JobRecord &record)
{
    const SourceSummary source = sourceSummary(record);
    QStringList parts;
    if (source.seconds)
        parts.append(durationText(*source.seconds));
    if (!source.text.isEmpty())
        parts.append(source.text);
    const QString preset = record.plan[u"preset"_s].toObject()[u"name"_s].toString();
    const QString target = preset.isEmpty() ? QString() : u"→ "_s + preset;
    return QStringList{parts.join(u" · "_s), target}.join(u"  "_s).trimmed();
}

QString joined(const QList<tarnwell::Sentence> &sentences)
{
    QStringList texts;
    for (const tarnwell::Sentence &sentence : sentences)
        texts.append(sentence.localized());
    return texts.join(u' ');
}

}  // namespace

ConversionList::ConversionList(Conversions &conversions, QObject *parent)
    : JobList(conversions.queue(), marlinJobs.toString(), parent),
      m_conversions(conversions)
{
    connect(&conversions, &Conversions::informed, this, [this](JobId id) {
        if (const int row = rowOf(id); row >= 0)
            emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    });
}

QString ConversionList::warningText(const JobRecord &record) const
{
    if (record.state == JobState::Ready || record.state == JobState::Waiting)
        return joined(m_conversions.warnings(record.id));
    return JobList::warningText(record);
}

QVariant ConversionList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const JobRecord &record = recordAt(index.row());
    if (role == Qt::DisplayRole && index.column() == DetailColumn)
        return detailText(record);
    if (role == Qt::ToolTipRole && index.column() != StateColumn) {
        QStringList lines{record.source, detailText(record), warningText(record), jobStateHoverText(record)};
        lines.removeAll(QString());
        return tarnwell::hoverTextShowing(lines.join(u'\n'));
    }
    return JobList::data(index, role);
}

}  // namespace kestrel
