#include "DownloadJob.h"

#include "PartFolder.h"

#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "jobs/DiskSpace.h"
#include "jobs/OutputFile.h"
#include "media/MediaProber.h"
#include "media/Placing.h"
#include "media/Preset.h"
#include "media/ToolPath.h"
#include "tarnwell/Log.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QPointer>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr qint64 leastSpace = 1'000'000;

}  // namespace

constexpr tarnwell::TextKey addressIsOfList =
    "There are several films at this address. Add it again to choose among them."_key;

DownloadJob::DownloadJob(DownloadPlan plan, QString folder, DownloadTools tools, QObject *parent)
    : ToolJob(parent),
      m_plan(std::move(plan)),
      m_folder(std::move(folder)),
      m_tools(std::move(tools)),
      m_answers(m_tools.answers)
{
}

DownloadJob::~DownloadJob()
{
    endTool();
    m_placing.reset();  // not taken back
    m_conversion.reset();
    discard();
}

void DownloadJob::start()
{
    if (m_plan.address.isEmpty())
        return fail("The options of this job could not be read. Add the address again."_key);
    if (!QFileInfo(m_tools.engine.engine).isExecutable())
        return fail("The download engine is missing. Please install the application again."_key);
    foundation::makePrivateFolder(m_tools.engine.home);
    auto part = PartFolder::take(m_folder, m_plan);
    if (!part)
        return fail(part.reason());
    m_part = *std::move(part);
    m_resumed = m_part->bytes();
    // Of a film that is there already it will do what the site has told once, or nothing: it may be gone by now.
    const bool isThere = m_part->missingCompanions().has_value();
    const auto age = isThere ? AnswerStore::Age::Any : AnswerStore::Age::Fresh;
    const auto recall = [answers = m_answers, plan = m_plan, age] { return answers.answer(plan, age); };
    read(recall, [this, isThere](std::optional<EngineAnswer> known) {
        if (!known && isThere) {
            known.emplace().title = m_plan.address;
            known->seconds = m_plan.seconds;
        }
        if (!known)
            return analyse();
        m_answer = *std::move(known);
        m_answerPath = m_answers.fresh(m_plan);
        download();
    });
}

template <typename Reader, typename Taker>
void DownloadJob::read(Reader reader, Taker taker)
{
    foundation::queue::asyncGlobal([self = QPointer(this), reader, taker] {
        foundation::queue::asyncMain([self, taker, what = reader()] {
            if (self && !self->m_isOver)
                taker(what);
        });
    });
}

void DownloadJob::analyse()
{
    tellStage("Asking the site…"_key);
    m_answerPath.clear();
    run(analysisCommand(m_plan, m_tools.engine), [this](const ToolEnding &ending) { analysed(ending); });
}

void DownloadJob::analysed(const ToolEnding &ending)
{
    m_retryAfter = retryAfterIn(ending.output);
    if (!ending.isGood())
        return engineFailed(ending);
    const auto parse = [answers = m_answers, plan = m_plan, output = ending.output] {
        const auto answer = parseEngineAnswer(output, plan.address);
        if (answer && answer->entries.isEmpty())
            answers.keep(plan, *answer);
        return answer;
    };
    read(parse, [this, words = ending.lastWords](const foundation::Result<EngineAnswer, Sentence> &answer) {
        if (!answer)
            return fail(answer.reason(), words);
        if (!answer->entries.isEmpty())
            return fail(addressIsOfList);
        m_answer = *answer;
        m_answerPath = m_answers.fresh(m_plan);
        download();
    });
}

void DownloadJob::download()
{
    if (m_answer.isToCome)
        return fail(engineFailureOf(EngineFailure::Kind::NotBegun).sentence);
    if (m_answer.isProtected)
        return fail(engineFailureOf(EngineFailure::Kind::Protected).sentence);
    // A run before this one may have ended between the download and the rest.
    if (const auto words = m_part->missingCompanions()) {
        m_companionWords = *words;
        return look();
    }
    m_progress = EngineProgress(m_plan.bytes > 0 ? m_plan.bytes : m_answer.bytes,
                                m_answer.film["requested_formats"_L1].toArray().size() > 1);
    m_bytesAtTry = m_part->bytes();
    m_retryAfter = 0;
    m_plan.picture = m_answer.picture;
    tellStage("Connecting…"_key);
    const ToolCommand command = downloadCommand(m_plan, m_tools.engine, m_part->path(), m_answerPath);
    tarnwell::DNFootLog(u"Downloading from %1"_s.arg(m_plan.server()));
    ToolProcess &tool = run(command, [this](const ToolEnding &ending) { downloaded(ending); });
    connect(&tool, &ToolProcess::outputLine, this, [this, &tool](const QByteArray &line) { readLine(tool, line); });
}

void DownloadJob::readLine(ToolProcess &tool, const QByteArray &line)
{
    if (const int seconds = retryAfterIn(line); seconds > 0)
        m_retryAfter = seconds;
    if (!m_progress.readLine(line))
        return;
    const bool isOfAnother = !m_progress.whole().isNull() && !m_part->isPartOf(m_progress.file(), m_progress.whole());
    // Once: a server may tell another size each time.
    if (isOfAnother && !std::exchange(m_hasBegunAnew, true)) {
        m_isReplaced = true;
        tool.cancel();
        return;
    }
    const double before = m_told.fraction.value_or(0);
    m_told = m_progress.progress();
    if (m_told.fraction)
        m_told.fraction = std::max(before, *m_told.fraction);
    emit progressed(m_told);
}

void DownloadJob::downloaded(const ToolEnding &ending)
{
    if (std::exchange(m_isReplaced, false)) {
        tarnwell::DNFootLog(u"Begun anew: there is something else than before at %1"_s.arg(m_plan.server()));
        m_part->clear();
        m_resumed = 0;
        m_answers.forget(m_plan);
        return analyse();
    }
    const bool isWhole = !m_part->downloaded().isNull();
    const bool lacksCompanions = isWhole && ending.cause == ToolEnding::Cause::Exited && ending.exitCode != 0;
    if (lacksCompanions)
        m_companionWords = ending.lastWords;
    else if (!ending.isGood() || !isWhole)
        return engineFailed(ending);
    if (m_tools.engine.tried)
        m_tools.engine.tried(m_tools.engine, std::nullopt);
    m_part->setMissingCompanions(m_companionWords);
    look();
}

EngineFailure DownloadJob::failureOf(const ToolEnding &ending) const
{
    using Kind = EngineFailure::Kind;
    const EngineFailure failure = engineFailure(ending, m_plan.proxy);
    // A server that was there before has broken off, or the way to it is broken.
    if (failure.kind == Kind::NotThere && m_part->bytes() > 0)
        return hasNetwork() ? EngineFailure{failure.kind, engineFailureOf(Kind::Server).sentence}
                            : engineFailureOf(Kind::NoNetwork);
    // What runs below the engine does not always tell why it could not write.
    const auto space = diskSpaceOf(m_folder);
    if (failure.kind == Kind::Unknown && space && space->available < leastSpace)
        return engineFailureOf(Kind::Disk);
    return failure;
}

void DownloadJob::engineFailed(const ToolEnding &ending)
{
    using Kind = EngineFailure::Kind;
    const EngineFailure failure = failureOf(ending);
    if (takeOtherEngine(m_tools.engine, failure.kind)) {
        tarnwell::DNFootLog(u"Trying another engine: %1"_s.arg(ending.lastWords));
        return analyse();
    }
    constexpr Kind ofExpired[] = {Kind::Refused, Kind::Gone, Kind::NoSuchForm, Kind::LogIn};
    const bool mayHaveExpired = std::ranges::find(ofExpired, failure.kind) != std::end(ofExpired);
    if (mayHaveExpired && !m_answerPath.isNull() && !m_hasAskedAgain) {
        m_hasAskedAgain = true;
        m_answers.forget(m_plan);
        return analyse();
    }
    if (passesByItself(failure.kind) || (failure.kind == Kind::NotThere && m_part->bytes() > 0))
        return waitAndTryAgain(failure, ending.lastWords);
    fail(failure.sentence, ending.lastWords);
}

void DownloadJob::waitAndTryAgain(const EngineFailure &failure, const QString &details)
{
    if (m_part->bytes() > m_bytesAtTry)
        m_attempts.reset();
    m_bytesAtTry = m_part->bytes();
    const int asked = std::exchange(m_retryAfter, 0);
    const auto seconds = m_attempts.next(failure.kind, asked);
    if (!seconds)
        return fail(givenUpSentence(failure, asked), details);
    ++m_waitNumber;
    waitOn(*seconds, failure.kind);
}

void DownloadJob::waitOn(int seconds, EngineFailure::Kind kind)
{
    if (m_isOver)
        return;
    if (seconds == 0)
        return m_answerPath.isNull() ? analyse() : download();
    tellStage(waitingSentence(kind, seconds));
    foundation::queue::afterMain(1s, [self = QPointer(this), seconds, kind, number = m_waitNumber] {
        if (self && self->m_waitNumber == number)
            self->waitOn(self->isPaused() ? seconds : seconds - 1, kind);
    });
}

void DownloadJob::look()
{
    tellStage("Checking the finished file…"_key);
    const QString path = m_part->downloaded();
    const qint64 bytes = QFileInfo(path).size();
    run(outputReportCommand(m_tools.transcode.prober, ToolPath(path).argument(), bytes),
        [this, path](const ToolEnding &ending) { looked(ending, path); });
}

void DownloadJob::looked(const ToolEnding &ending, const QString &path)
{
    const auto found =
        ending.isGood() ? parseOutputReport(ending.output, QFileInfo(path).size()) : std::optional<FoundOutput>();
    m_check = found ? checkDownload(m_plan, m_answer, *found, toldPackets(ending.output), QFileInfo(path).suffix(),
                                    ending.lastWords)
                    : DownloadCheck{DownloadCheck::Finding::Useless, notAFilm};
    switch (m_check.finding) {
        case DownloadCheck::Finding::Useless:
            // It would be the same at the next attempt.
            m_part->clear();
            m_answers.forget(m_plan);
            return fail(m_check.sentence, ending.lastWords);
        case DownloadCheck::Finding::NeedsConversion:
            return convert(path, m_check);
        default:
            return place(path);
    }
}

void DownloadJob::convert(const QString &path, const DownloadCheck &check)
{
    const Preset *preset = presetOfId(check.presetId);
    if (!preset)
        return fail("The converter is missing. Please install the application again."_key);
    TranscodePlan plan;
    plan.sources = {path};
    plan.preset = *preset;
    m_conversion = std::make_unique<TranscodeJob>(TranscodeRequest{
        .plan = plan, .information = {}, .folder = m_folder, .tools = m_tools.transcode, .name = title()});
    m_conversion->setNotary([this](const JobOutcome &outcome, const QString &partPath, std::function<void()> then) {
        m_converted = outcome;
        beforePlacing(goodOutcome(), partPath, std::move(then));
    });
    connect(m_conversion.get(), &Job::progressed, this, [this](JobProgress progress) {
        if (progress.stage.isEmpty() && progress.fraction)
            progress.stage = {"Converting… %1 %"_key, {QString::number(int(*progress.fraction * 100))}};
        else if (progress.stage.isEmpty())
            progress.stage = "Converting…"_key;
        progress.fraction.reset();  // the bar is the download's, which is over
        emit progressed(progress);
    });
    connect(m_conversion.get(), &Job::noted, this, &Job::noted);
    connect(m_conversion.get(), &Job::finished, this, &DownloadJob::converted);
    m_conversion->start();
    if (isPaused())
        m_conversion->setPaused(true);
}

void DownloadJob::converted(const JobOutcome &outcome)
{
    const bool isMade = outcome.state == JobState::Done || outcome.state == JobState::DoneWithProblems;
    if (!isMade)
        return fail(outcome.sentence, outcome.details);
    m_converted = outcome;
    finishGood(outcome.outputs);
}

void DownloadJob::place(const QString &path)
{
    auto output = std::make_shared<OutputFile>(m_folder, title(), QFileInfo(path).suffix());
    if (!output->isValid())
        return fail(output->reason());
    tellStage("Saving…"_key);
    if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(output->partPath()).constData()) != 0)
        return fail("The output could not be written."_key);
    const QString partPath = output->partPath();
    m_placing = std::make_shared<Placing>(std::move(output), std::nullopt);
    beforePlacing(goodOutcome(), partPath, [this] {
        if (!m_placing)
            return;  // cancelled
        m_placing->start(this, [this](const foundation::Result<QString, Sentence> &placed) {
            m_placing.reset();
            placed ? finishGood({*placed}) : fail(placed.reason());
        });
    });
}

JobOutcome DownloadJob::goodOutcome() const
{
    Sentence problem = m_check.sentence;
    if (problem.isEmpty() && !m_companionWords.isEmpty())
        problem = "The film has come, but subtitles, cover or chapters could not be added to it."_key;
    if (problem.isEmpty())
        problem = m_converted.sentence;
    const bool isWhole = problem.isEmpty() && m_converted.state == JobState::Done;
    return {.state = isWhole ? JobState::Done : JobState::DoneWithProblems,
            .sentence = problem,
            .details = m_companionWords + m_converted.details,
            .problems = m_converted.problems,
            .leftOut = m_converted.leftOut,
            .facts = {{u"resumed_bytes"_s, m_resumed}}};
}

void DownloadJob::finishGood(const QStringList &outputs)
{
    m_part->remove();
    m_part.reset();
    m_answers.forget(m_plan);
    JobOutcome outcome = goodOutcome();
    outcome.outputs = outputs;
    finish(outcome);
}

void DownloadJob::fail(const Sentence &sentence, const QString &details)
{
    discard();
    finish({.state = JobState::Failed, .sentence = sentence, .details = details});
}

void DownloadJob::setPaused(bool paused)
{
    ToolJob::setPaused(paused);
    if (m_conversion)
        m_conversion->setPaused(paused);
}

/// What has come stays.
void DownloadJob::discard()
{
    m_isOver = true;
    ++m_waitNumber;
    if (m_conversion)
        m_conversion->cancel();
    m_conversion.reset();
    if (m_placing)
        m_placing->takeBack();
    m_placing.reset();
    m_part.reset();
}

void DownloadJob::tellStage(const Sentence &stage)
{
    m_told.stage = stage;
    m_told.bytesPerSecond = 0;
    emit progressed(m_told);
}

QString DownloadJob::title() const
{
    return m_plan.title.isEmpty() ? m_answer.title : m_plan.title;
}

}  // namespace kestrel
