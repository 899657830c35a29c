#include "TranscodeVerdict.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

QString secondsText(double seconds)
{
    return QString::number(seconds, 'f', seconds < 10 ? 1 : 0);
}

/// How much of the source there is.
Sentence readSentence(double seconds, std::optional<double> wanted, int faults)
{
    const QString read = secondsText(seconds), all = wanted ? secondsText(*wanted) : QString();
    const QString count = QString::number(faults);
    if (wanted)
        return faults == 1 ? Sentence("%1 of %2 s could be read, 1 fault"_key, {read, all})
                           : Sentence("%1 of %2 s could be read, %3 faults"_key, {read, all, count});
    return faults == 1 ? Sentence("%1 s could be read, 1 fault"_key, {read})
                       : Sentence("%1 s could be read, %2 faults"_key, {read, count});
}

/// Why the tool did not end well; none where it did.
Sentence toolFailure(const TranscodeFacts &facts)
{
    using enum ToolEnding::Cause;
    switch (facts.ending.cause) {
        case CouldNotStart:
            return "The converter could not be started. Please install the application again."_key;
        case Silence:
        case TimeLimit:
            return "The converter did not answer any more."_key;
        case Stopped:
            return {};
        default:
            break;
    }
    // Some of what it ends well with is none: the disk was full as it wrote the index.
    if (facts.ending.isGood() && !facts.messages.saysEmptyOutput() && !facts.messages.failure().isHopeless)
        return {};
    return facts.messages.failure().sentence;
}

/// Why the output is not to be kept; none where it is.
Sentence outputFailure(const TranscodeFacts &facts)
{
    if (!facts.findings)
        return "The finished file could not be read back."_key;
    const OutputFindings &findings = *facts.findings;
    if (findings.isEmpty)
        return "Nothing of the file could be converted."_key;
    if (!findings.damage.isEmpty())
        return findings.damage;
    const bool isSourceDamaged = facts.messages.faults() > 0;
    if (!findings.mismatch.isEmpty() && !isSourceDamaged)
        return findings.mismatch;
    if (facts.readingFaults > 0 && !facts.copiesTracks)
        return facts.readingFaults == 1
                   ? Sentence("The finished file is damaged: 1 fault."_key)
                   : Sentence("The finished file is damaged: %1 faults."_key, {QString::number(facts.readingFaults)});
    return {};
}

QList<Sentence> problemsIn(const TranscodeFacts &facts)
{
    const OutputFindings &findings = *facts.findings;
    const int faults = std::max(facts.messages.faults(), facts.readingFaults);
    const bool isShort = findings.isShort && facts.expected.secondsAreTold;
    QList<Sentence> problems;
    if (facts.expected.seconds && (isShort || (faults > 0 && facts.expected.secondsAreTold)))
        problems.append(
            readSentence(std::min(findings.seconds, *facts.expected.seconds), facts.expected.seconds, faults));
    else if (faults > 0)
        problems.append(readSentence(findings.seconds, std::nullopt, faults));
    if (!findings.mismatch.isEmpty())
        problems.append(findings.mismatch);
    if (findings.isLong && facts.expected.secondsAreTold)
        problems.append({"The finished file is %1 s long instead of %2 s."_key,
                         {secondsText(findings.seconds), secondsText(*facts.expected.seconds)}});
    if (findings.isTooLarge)
        problems.append("The finished file is larger than wanted."_key);
    if (findings.lacksChapters)
        problems.append("Chapters are missing in the finished file."_key);
    if (facts.ending.cause == ToolEnding::Cause::Stopped && problems.isEmpty())
        problems.append("The conversion was stopped before the end."_key);
    return problems;
}

}  // namespace

JobOutcome transcodeVerdict(const TranscodeFacts &facts)
{
    JobOutcome outcome;
    outcome.details = facts.messages.text();
    outcome.sentence = toolFailure(facts);
    if (outcome.sentence.isEmpty())
        outcome.sentence = outputFailure(facts);
    if (!outcome.sentence.isEmpty()) {
        outcome.state = JobState::Failed;
        return outcome;
    }
    outcome.problems = problemsIn(facts);
    outcome.state = outcome.problems.isEmpty() ? JobState::Done : JobState::DoneWithProblems;
    outcome.sentence = outcome.problems.value(0);
    outcome.facts[u"seconds"_s] = facts.findings->seconds;
    if (facts.expected.seconds)
        outcome.facts[u"wantedSeconds"_s] = *facts.expected.seconds;
    outcome.facts[u"faults"_s] = std::max(facts.messages.faults(), facts.readingFaults);
    return outcome;
}

}  // namespace kestrel
