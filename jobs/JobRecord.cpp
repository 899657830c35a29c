#include "JobRecord.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

constexpr tarnwell::TextKey outputIsGone = "The file is no longer where it was."_key;

namespace {

struct NamedState {
    JobState state;
    QLatin1StringView name;
};

constexpr std::array namedStates = {
    NamedState{JobState::Checking, "checking"_L1},
    NamedState{JobState::Unusable, "unusable"_L1},
    NamedState{JobState::Ready, "ready"_L1},
    NamedState{JobState::Waiting, "waiting"_L1},
    NamedState{JobState::Running, "running"_L1},
    NamedState{JobState::Paused, "paused"_L1},
    NamedState{JobState::Stopping, "stopping"_L1},
    NamedState{JobState::Done, "done"_L1},
    NamedState{JobState::DoneWithProblems, "done-with-problems"_L1},
    NamedState{JobState::Failed, "failed"_L1},
    NamedState{JobState::Cancelled, "cancelled"_L1},
    NamedState{JobState::Interrupted, "interrupted"_L1},
};

QJsonArray sentencesToJson(const QList<tarnwell::Sentence> &sentences)
{
    QJsonArray json;
    for (const tarnwell::Sentence &sentence : sentences)
        json.append(sentence.toJson());
    return json;
}

QList<tarnwell::Sentence> sentencesFromJson(const QJsonValue &json)
{
    QList<tarnwell::Sentence> sentences;
    for (const QJsonValue value : json.toArray()) {
        if (const auto sentence = tarnwell::Sentence::fromJson(value); !sentence.isEmpty())
            sentences.append(sentence);
    }
    return sentences;
}

QJsonObject outcomeToJson(const JobOutcome &outcome)
{
    constexpr qsizetype maximumDetails = 64 * 1024;  // the end of what a tool said tells the most
    return {{u"state"_s, jobStateName(outcome.state)},
            {u"sentence"_s, outcome.sentence.toJson()},
            {u"details"_s, outcome.details.right(maximumDetails)},
            {u"outputs"_s, QJsonArray::fromStringList(outcome.outputs)},
            {u"problems"_s, sentencesToJson(outcome.problems)},
            {u"left_out"_s, sentencesToJson(outcome.leftOut)},
            {u"facts"_s, outcome.facts}};
}

JobOutcome outcomeFromJson(const QJsonObject &json)
{
    JobOutcome outcome;
    outcome.state = jobStateNamed(json.value("state"_L1).toString()).value_or(JobState::Failed);
    outcome.sentence = tarnwell::Sentence::fromJson(json.value("sentence"_L1));
    outcome.details = json.value("details"_L1).toString();
    for (const QJsonValue output : json.value("outputs"_L1).toArray()) {
        if (output.isString())
            outcome.outputs.append(output.toString());
    }
    outcome.problems = sentencesFromJson(json.value("problems"_L1));
    outcome.leftOut = sentencesFromJson(json.value("left_out"_L1));
    outcome.facts = json.value("facts"_L1).toObject();
    return outcome;
}

QDateTime timeFromJson(const QJsonValue &json)
{
    return QDateTime::fromString(json.toString(), Qt::ISODateWithMs);
}

}  // namespace

bool isEnded(JobState state)
{
    return state >= JobState::Done;
}

bool isBeforeStart(JobState state)
{
    return state == JobState::Checking || state == JobState::Unusable || state == JobState::Ready;
}

bool isActive(JobState state)
{
    return state == JobState::Running || state == JobState::Paused || state == JobState::Stopping;
}

QString jobStateName(JobState state)
{
    const auto found = std::find_if(namedStates.begin(), namedStates.end(),
                                    [state](const NamedState &row) { return row.state == state; });
    return found == namedStates.end() ? QString() : QString(found->name);
}

std::optional<JobState> jobStateNamed(const QString &name)
{
    const auto found = std::find_if(namedStates.begin(), namedStates.end(),
                                    [&name](const NamedState &row) { return row.name == name; });
    return found == namedStates.end() ? std::nullopt : std::optional(found->state);
}

QJsonObject jobRecordToJson(const JobRecord &record)
{
    QJsonObject json{{u"title"_s, record.title},
                     {u"source"_s, record.source},
                     {u"plan"_s, record.plan},
                     {u"folder"_s, record.folder},
                     {u"added"_s, record.added.toUTC().toString(Qt::ISODateWithMs)},
                     {u"started"_s, record.started.toUTC().toString(Qt::ISODateWithMs)},
                     {u"ended"_s, record.ended.toUTC().toString(Qt::ISODateWithMs)}};
    if (!record.note.isEmpty())
        json.insert(u"note"_s, record.note.toJson());
    if (record.placing)
        json.insert(u"placing"_s, record.placing->toJson());
    if (isEnded(record.state) || record.state == JobState::Unusable || record.placing)
        json.insert(u"outcome"_s, outcomeToJson(record.outcome));
    return json;
}

bool readJobRecord(const QJsonObject &json, JobRecord &record)
{
    const QJsonValue title = json.value("title"_L1), plan = json.value("plan"_L1);
    if (!title.isString() || !plan.isObject())
        return false;
    record.title = title.toString();
    record.plan = plan.toObject();
    record.source = json.value("source"_L1).toString();
    record.folder = json.value("folder"_L1).toString();
    record.added = timeFromJson(json.value("added"_L1));
    record.started = timeFromJson(json.value("started"_L1));
    record.ended = timeFromJson(json.value("ended"_L1));
    record.note = tarnwell::Sentence::fromJson(json.value("note"_L1));
    record.placing = PlacedPart::fromJson(json.value("placing"_L1).toObject());
    if (json.contains("outcome"_L1))
        record.outcome = outcomeFromJson(json.value("outcome"_L1).toObject());
    return true;
}

}  // namespace kestrel
