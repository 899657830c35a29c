// What comes after the last run of the tool: the look at the output, the judgement, the name.
#include "Placing.h"
#include "TranscodeJob.h"
#include "TranscodeVerdict.h"

#include "foundation/FileNames.h"
#include "jobs/DiskSpace.h"
#include "jobs/OutputFile.h"
#include "tarnwell/Log.h"

#include <QDir>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

void TranscodeJob::checkOutput(const ToolEnding &ending)
{
    tellStage("Checking the finished file…"_key);
    const QString part = m_output->partPath();
    m_reading = ToolMessages({m_outputPath->path()});
    const ToolProcess &tool = run(
        outputReportCommand(m_request.tools.prober, m_outputPath->argument(), foundation::fileFacts(part).bytes),
        [this, ending, part](const ToolEnding &probing) {
            const auto found =
                probing.isGood() ? parseOutputReport(probing.output, foundation::fileFacts(part).bytes) : std::nullopt;
            // What was to be stopped has been written already; it is worth a look.
            if (probing.cause == ToolEnding::Cause::Stopped)
                return checkOutput(ending);
            if (!found) {
                // Another attempt would take as long to read.
                m_isSecondAttempt |= probing.cause == ToolEnding::Cause::TimeLimit;
                return judge(ending, std::nullopt);
            }
            const OutputFindings findings = compareOutput(
                m_steps.expected,
                {.bytes = m_progress.finalBytes(), .seconds = m_progress.seconds(), .tracks = m_messages.muxedTracks()},
                *found);
            const bool isBroken = findings.isEmpty || !findings.damage.isEmpty();
            if (ending.isGood() && !isBroken && !isStopping() && aimsAgain(findings, found->bytes))
                return carryOut();
            if (neededDecoding() != Decoding::None && !isBroken && !isStopping())
                decodeOutput(ending, findings);
            else
                judge(ending, findings);
        });
    connect(&tool, &ToolProcess::errorLine, this, [this](const QByteArray &line) { m_reading.readLine(line); });
}

/// Nothing was decoded of what was copied, and so nothing was said of its faults. Small files are soon decoded.
Decoding TranscodeJob::neededDecoding() const
{
    constexpr qint64 smallBytes = 32 * 1024 * 1024;
    if (m_steps.expected.decodesAll)
        return Decoding::All;
    if (m_steps.work == TranscodeSteps::Work::Encode)
        return Decoding::None;
    return foundation::fileFacts(m_output->partPath()).bytes <= smallBytes ? Decoding::All : Decoding::KeyPictures;
}

void TranscodeJob::decodeOutput(const ToolEnding &ending, const OutputFindings &findings)
{
    const ToolProcess &tool =
        run(decodingCommand(m_request.tools.transcoder, m_outputPath->argument(), neededDecoding()),
            [this, ending, findings](const ToolEnding &decoding) {
                if (!decoding.isGood() && !isStopping() && m_reading.faults() == 0)
                    m_reading.readLine("[error] The finished file could not be decoded");
                judge(ending, findings);
            });
    connect(&tool, &ToolProcess::errorLine, this, [this](const QByteArray &line) { m_reading.readLine(line); });
}

void TranscodeJob::judge(const ToolEnding &ending, const std::optional<OutputFindings> &findings)
{
    const TranscodeFacts facts{.ending = ending,
                               .messages = m_messages,
                               .expected = m_steps.expected,
                               .copiesTracks = m_steps.work != TranscodeSteps::Work::Encode,
                               .findings = findings,
                               .readingFaults = m_reading.faults()};
    JobOutcome outcome = transcodeVerdict(facts);
    // What encoders say of a folder for temporary files that is full is not always "no space".
    constexpr qint64 leastTemporarySpace = 1'000'000;
    const auto space = m_workFolder ? diskSpaceOf(QDir::tempPath()) : std::nullopt;
    if (outcome.state == JobState::Failed && !m_messages.failure().isHopeless && space &&
        space->available < leastTemporarySpace)
        outcome.sentence = "The disk for temporary files is full. Free some space and convert again."_key;
    if (m_reading.faults() > 0)
        outcome.details += u'\n' + m_reading.text();
    outcome.leftOut = m_steps.leftOut;
    if (outcome.state != JobState::Failed)
        return place(outcome);
    const bool isHopeless =
        m_messages.failure().isHopeless || ending.cause == ToolEnding::Cause::CouldNotStart || isStopping();
    if (m_steps.takesShortcut && !m_isSecondAttempt && !isHopeless)
        return tryWithoutShortcuts();
    discard();
    finish(outcome);
}

/// Encoders keep to a rate as well as they can; what one attempt missed the next one allows for.
bool TranscodeJob::aimsAgain(const OutputFindings &findings, qint64 bytes)
{
    const int mostCorrections = m_steps.work == TranscodeSteps::Work::Encode ? 2 : 5;  // sound is made in no time
    const qint64 correction = sizeCorrection(m_steps.expected.maximumBytes, bytes);
    // A larger size gains nothing where the pictures are at their best, and sound has few rates.
    const bool hasNoMore =
        correction < 0 && ((m_correction < 0 && bytes <= m_lastBytes) || m_steps.work != TranscodeSteps::Work::Encode);
    if (correction == 0 || hasNoMore || findings.isShort || m_corrections == mostCorrections ||
        m_correction + correction >= m_request.plan.maximumBytes)
        return false;
    // What the smaller size does not allow is no reason to throw away what was made.
    TranscodePlan next = m_request.plan;
    next.maximumBytes -= m_correction + correction;
    if (!transcodeSteps(next, m_request.information, m_request.tools.machine,
                        {m_outputPath->path(), m_workFolder->path()}))
        return false;
    ++m_corrections;
    m_lastBytes = bytes;
    m_correction += correction;
    emit noted(tarnwell::Sentence("Encoding once more, to meet the size"_key));
    return true;
}

void TranscodeJob::tryWithoutShortcuts()
{
    tarnwell::DNFootLog(u"Converting again in software, without copying: %1"_s, m_messages.text());
    const bool hadHardware = m_steps.work == TranscodeSteps::Work::Encode && m_request.tools.machine.hasHardware();
    m_isSecondAttempt = true;
    emit noted(hadHardware ? "Encoding in software"_key : "Encoding, because the tracks could not be copied"_key);
    m_request.plan = withoutShortcuts(std::move(m_request.plan));
    m_request.plan.pieces = m_wantedPieces;
    carryOut();
}

void TranscodeJob::place(const JobOutcome &outcome)
{
    tellStage("Saving…"_key);
    beforePlacing(outcome, m_output->partPath(), [this, outcome] { giveName(outcome); });
}

void TranscodeJob::giveName(JobOutcome outcome)
{
    if (!m_output)  // cancelled meanwhile
        return;
    const QString &source = m_sources.front().path();
    m_placing =
        std::make_shared<Placing>(std::exchange(m_output, nullptr),
                                  m_request.plan.keepsDate ? foundation::fileFacts(source).modified : std::nullopt);
    m_placing->start(this,
                     [this, outcome = std::move(outcome)](const foundation::Result<QString, Sentence> &path) mutable {
                         m_placing.reset();
                         m_workFolder.reset();
                         if (!path) {
                             outcome.state = JobState::Failed;
                             outcome.sentence = path.reason();
                             outcome.problems.clear();
                         } else {
                             outcome.outputs = {*path};
                         }
                         finish(outcome);
                     });
}

void TranscodeJob::fail(const Sentence &sentence)
{
    discard();
    finish({.state = JobState::Failed, .sentence = sentence});
}

/// Before there is anything that is worth to be kept.
void TranscodeJob::finishStopped()
{
    discard();
    finish({.state = JobState::Cancelled});
}

void TranscodeJob::discard()
{
    if (m_placing)
        m_placing->takeBack();
    m_placing.reset();
    m_output.reset();
    m_outputPath.reset();
    m_workFolder.reset();
}

}  // namespace kestrel
