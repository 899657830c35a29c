#include "DownloadList.h"

#include "Download.h"

#include "jobs/JobText.h"
#include "jobs/RemainingTime.h"

#include <QJsonArray>
#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

const QString filmKey = u"film"_s;  // beside the members of the plan

QString detailText(const JobRecord &record)
{
    const auto plan = DownloadPlan::fromJson(record.plan);
    if (!plan)
        return record.source;
    QString form = u"→ "_s + plan->extension.toUpper();
    if (!plan->soundOnly && plan->height > 0)
        form += u" %1p"_s.arg(plan->height);
    QStringList parts{plan->server()};
    if (plan->seconds > 0)
        parts.append(durationText(plan->seconds));
    parts.append(form);
    if (plan->bytes > 0)
        parts.append(bytesText(plan->bytes));
    return parts.join(u" · "_s);
}

/// Null where there is no more to say than of any job.
QString runText(const JobRecord &record)
{
    const JobProgress &progress = record.progress;
    if (isBeforeStart(record.state))
        return record.blocked.localized();
    if (record.state != JobState::Running || !progress.stage.isEmpty() || progress.bytesPerSecond <= 0)
        return {};
    QStringList parts;
    if (progress.fraction)
        parts.append(u"%1 %"_s.arg(std::floor(*progress.fraction * 100)));
    else
        parts.append(bytesText(progress.bytes));
    // What the site has not told is known by what came.
    const auto plan = DownloadPlan::fromJson(record.plan);
    if (progress.fraction.value_or(0) > 0 && plan && plan->bytes == 0)
        parts.append(bytesText(qint64(double(progress.bytes) / *progress.fraction)));
    parts.append(Sentence("%1/s"_key, {bytesText(qint64(progress.bytesPerSecond))}).localized());
    if (progress.remainingSeconds)
        parts.append(remainingTimeText(*progress.remainingSeconds));
    return parts.join(u" · "_s);
}

/// Of the resolution that the plan would get.
qint64 bytesFor(const DownloadPlan &plan, const FilmFacts &facts)
{
    for (const auto &[height, bytes] : facts.resolutions) {
        if (plan.height == 0 || height <= plan.height)
            return bytes;
    }
    return facts.resolutions.isEmpty() ? 0 : facts.resolutions.last().second;
}

}  // namespace

FilmFacts filmFacts(const JobRecord &record)
{
    constexpr int maximumHeight = 100'000;
    const QJsonObject film = record.plan[filmKey].toObject();
    FilmFacts facts;
    for (const QJsonValue &value : film["resolutions"_L1].toArray()) {
        const QJsonArray pair = value.toArray();
        if (const int height = pair.at(0).toInt(); height > 0 && height < maximumHeight)
            facts.resolutions.append({height, std::max(qint64(0), qint64(pair.at(1).toDouble()))});
    }
    for (const QJsonValue &language : film["subtitles"_L1].toArray())
        facts.subtitles.append(language.toString());
    return facts;
}

void setDownloadPlan(JobRecord &record, const DownloadPlan &plan)
{
    const FilmFacts facts = filmFacts(record);
    const QJsonValue film = record.plan[filmKey];
    DownloadPlan sized = plan;
    if (!facts.resolutions.isEmpty())
        sized.bytes = plan.soundOnly ? 0 : bytesFor(plan, facts);
    record.plan = sized.toJson();
    record.plan[filmKey] = film;
}

void setFilm(JobRecord &record, const EngineAnswer &answer)
{
    QJsonArray resolutions;
    for (const auto &[height, bytes] : answer.resolutions())
        resolutions.append(QJsonArray{height, double(bytes)});
    record.plan[filmKey] =
        QJsonObject{{u"resolutions"_s, resolutions}, {u"subtitles"_s, QJsonArray::fromStringList(answer.subtitles)}};
    if (auto plan = DownloadPlan::fromJson(record.plan)) {
        // Beside others of its page it is known by what it is called there.
        if (plan->item == 0 || plan->title.isEmpty())
            plan->title = record.title = answer.title;
        plan->seconds = answer.seconds;
        plan->bytes = answer.bytes;
        plan->picture = answer.picture;
        setDownloadPlan(record, *plan);
    }
}

DownloadList::DownloadList(JobQueue &queue, QObject *parent) : JobList(queue, petrelJobs.toString(), parent) {}

QVariant DownloadList::data(const QModelIndex &index, int role) const
{
    if (index.isValid() && role == Qt::DisplayRole) {
        if (index.column() == DetailColumn)
            return detailText(recordAt(index.row()));
        if (const QString text = index.column() == StateColumn ? runText(recordAt(index.row())) : QString();
            !text.isEmpty())
            return text;
    }
    return JobList::data(index, role);
}

}  // namespace kestrel
