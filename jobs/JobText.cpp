#include "JobText.h"

#include "RemainingTime.h"

#include <QDir>
#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

struct StateText {
    JobState state;
    tarnwell::TextKey text;
};

constexpr StateText stateTexts[] = {
    {JobState::Checking, "Reading…"_key},
    {JobState::Unusable, "Cannot be used"_key},
    {JobState::Ready, "Ready"_key},
    {JobState::Waiting, "Waiting"_key},
    {JobState::Running, "Running"_key},
    {JobState::Paused, "Paused"_key},
    {JobState::Stopping, "Stopping…"_key},
    {JobState::Done, "Done"_key},
    {JobState::DoneWithProblems, "Done with problems"_key},
    {JobState::Failed, "Failed"_key},
    {JobState::Cancelled, "Cancelled"_key},
    {JobState::Interrupted, "Interrupted"_key},
};

QString nameOf(JobState state)
{
    for (const StateText &row : stateTexts) {
        if (row.state == state)
            return row.text.localized();
    }
    return {};
}

QString progressText(const JobProgress &progress)
{
    if (!progress.stage.isEmpty())
        return progress.stage.localized();
    if (progress.fraction)
        return u"%1 %"_s.arg(std::floor(*progress.fraction * 100));
    if (progress.seconds > 0)
        return durationText(progress.seconds);
    if (progress.bytes > 0)
        return bytesText(progress.bytes);
    return nameOf(JobState::Running);
}

/// The one sentence that says the most of how it ended.
tarnwell::Sentence headline(const JobOutcome &outcome)
{
    const tarnwell::Sentence gone(outputIsGone);
    if (outcome.problems.contains(gone))
        return gone;
    if (outcome.sentence.isEmpty() && !outcome.problems.isEmpty())
        return outcome.problems.first();
    return outcome.sentence;
}

}  // namespace

QString jobStateText(const JobRecord &record)
{
    tarnwell::Sentence sentence;
    if (record.state == JobState::Waiting)
        sentence = record.blocked;
    else if (record.state == JobState::Unusable || isEnded(record.state))
        sentence = headline(record.outcome);
    if (!sentence.isEmpty())
        return sentence.localized();
    return record.state == JobState::Running ? progressText(record.progress) : nameOf(record.state);
}

QString jobStateHoverText(const JobRecord &record)
{
    QStringList lines{jobStateText(record)};
    if (record.progress.remainingSeconds && isActive(record.state))
        lines.append(remainingTimeText(*record.progress.remainingSeconds));
    if (!record.note.isEmpty())
        lines.append(record.note.localized());
    if (isEnded(record.state)) {
        for (const auto &sentences : {record.outcome.problems, record.outcome.leftOut}) {
            for (const tarnwell::Sentence &sentence : sentences)
                lines.append(sentence.localized());
        }
        for (const QString &output : record.outcome.outputs)
            lines.append(QDir::toNativeSeparators(output));
    }
    lines.removeDuplicates();
    return lines.join(u'\n');
}

QString bytesText(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

}  // namespace kestrel
