#include "StoredJob.h"

#include "PartOwner.h"

#include "foundation/FileNames.h"

#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrel {

namespace {

bool isHeld(JobState state)
{
    return state == JobState::Waiting || isActive(state);
}

/// Of processes of another machine or container nobody knows; but no job takes a week.
bool isAbandoned(const PartOwner &owner, const JobRecord &record)
{
    constexpr qint64 days = 7;
    const QDateTime &since = record.started.isValid() ? record.started : record.added;
    return owner.hasEnded() ||
           (owner.machine != PartOwner::self().machine && since.daysTo(QDateTime::currentDateTimeUtc()) > days);
}

/// What its process had under way when it was killed: the output may have got its name just before.
void endInterrupted(JobRecord &record)
{
    const auto placing = std::exchange(record.placing, {});
    const JobState intended = record.outcome.state;
    const bool wasMade = intended == JobState::Done || intended == JobState::DoneWithProblems;
    const QString output = placing && wasMade ? placing->placedPath() : QString();
    record.state = output.isNull() ? JobState::Interrupted : intended;
    if (output.isNull())
        record.outcome = {.state = JobState::Interrupted};
    else
        record.outcome.outputs = {output};
}

}  // namespace

JobRow storedJob(const JobRecord &record, double position)
{
    return {.id = record.id,
            .module = record.module,
            .position = position,
            .state = jobStateName(record.state),
            .owner = isHeld(record.state) ? PartOwner::self().tag() : QStringLiteral(""),
            .value = QJsonDocument(jobRecordToJson(record)).toJson(QJsonDocument::Compact)};
}

std::optional<LoadedJob> loadedJob(const JobRow &row)
{
    LoadedJob loaded{.row = {.record = {}, .position = row.position}};
    JobRecord &record = loaded.row.record;
    const std::optional<JobState> state = jobStateNamed(row.state);
    if (!state || row.module.isEmpty() || !std::isfinite(row.position) ||
        !readJobRecord(QJsonDocument::fromJson(row.value).object(), record))
        return std::nullopt;
    record.id = row.id;
    record.module = row.module;
    record.state = *state;
    if (isHeld(*state)) {
        const std::optional<PartOwner> owner = PartOwner::fromTag(row.owner);
        if (owner && *owner != PartOwner::self() && !isAbandoned(*owner, record)) {
            loaded.holder = owner->process;
            return loaded;
        }
        record.state = JobState::Ready;
        if (isActive(*state))
            endInterrupted(record);
        loaded.isToBeStored = true;
    } else if (*state == JobState::Done || *state == JobState::DoneWithProblems) {
        setOutputsThere(record);
    }
    return loaded;
}

bool outputsAreThere(const JobRecord &record)
{
    if (record.state != JobState::Done && record.state != JobState::DoneWithProblems)
        return true;
    const QStringList &outputs = record.outcome.outputs;
    return std::all_of(outputs.begin(), outputs.end(), [](const QString &path) {
        return foundation::fileFacts(path).kind != foundation::FileKind::Missing;
    });
}

bool saysOutputsGone(const JobRecord &record)
{
    return record.outcome.problems.contains(tarnwell::Sentence(outputIsGone));
}

void setOutputsThere(JobRecord &record)
{
    if (record.outcome.state != JobState::DoneWithProblems)
        record.outcome.state = JobState::Done;
    record.state = record.outcome.state;
    record.outcome.problems.removeAll(tarnwell::Sentence(outputIsGone));
}

void setOutputsGone(JobRecord &record)
{
    record.state = JobState::DoneWithProblems;
    record.outcome.problems.prepend(outputIsGone);
}

}  // namespace kestrel
