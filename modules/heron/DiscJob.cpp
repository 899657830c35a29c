#include "DiscJob.h"

#include "DiscFolderJob.h"
#include "DiscImageJob.h"
#include "MainTitleJob.h"
#include "TitleFileJob.h"
#include "TitleMpegJob.h"
#include "TitleRipJob.h"

#include "jobs/OutputFile.h"
#include "jobs/SystemFailure.h"
#include "media/Placing.h"
#include "tarnwell/Log.h"

#include <QJsonDocument>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

DiscJob::DiscJob(DiscRequest request, QObject *parent) : ToolJob(parent), m_request(std::move(request)) {}

DiscJob::~DiscJob()
{
    endTool();
    m_placing.reset();  // not taken back
    DiscJob::discard();
}

void DiscJob::start()
{
    tellStage("Reading the disc…"_key);
    const ToolProcess &tool = run(discInfoCommand(m_request.tools, m_request.plan.source),
                                  [this](const ToolEnding &ending) { lookedAt(ending); });
    Q_UNUSED(tool);
}

void DiscJob::lookedAt(const ToolEnding &ending)
{
    const QJsonObject object = QJsonDocument::fromJson(ending.output).object();
    auto contents = disc::discContentsFromJson(object);
    if (!ending.isGood() || !contents) {
        m_lines.error = object["error"_L1].toString();
        return fail(discFailure(m_lines, ending), ending.lastWords);
    }
    const QString before = m_request.plan.volume;
    const qint64 bytesBefore = m_request.plan.bytes;
    m_contents = *std::move(contents);
    if (m_contents.isProtected)
        return fail(discFailure(u"protected"_s));
    if (!before.isEmpty() && before != m_contents.volume)
        return fail({"This is another disc: %1 instead of %2."_key, {m_contents.volume, before}});
    if (!describeDisc(m_contents, m_request.plan))
        return fail(discFailure(u"noTitle"_s));
    // The tables tell the same of a disc each time.
    if (bytesBefore > 0 && bytesBefore != m_request.plan.bytes)
        return fail({"This is another disc, which is also called %1."_key, {m_contents.volume}});
    if (!takesWholeDisc(m_request.plan.way) && m_request.plan.firstChapter > title().chapters.size() &&
        m_request.plan.firstChapter > 1)
        return fail(discFailure(u"noTitle"_s));
    if (!takesWholeDisc(m_request.plan.way) && title().angles > 1)
        addLeftOut({"The other angles of the film: %1"_key, {QString::number(title().angles - 1)}});
    if (m_contents.isTruncated)
        addProblem("The disc image ends before its film does."_key);
    carryOut();
}

ToolProcess &DiscJob::runDiscTool(const ToolCommand &command, double share, Continuation then)
{
    m_lines = {};
    m_isFed = command.feeder != nullptr;
    beginShare(share);
    tarnwell::DNFootLog(u"Disc: %1 %2"_s, command.program, command.arguments.join(u' '));
    ToolProcess &tool = run(command, std::move(then));
    const auto read = [this](const QByteArray &line) {
        if (!m_lines.read(line) || m_lines.progress.isEmpty())
            return;
        const QJsonObject progress = std::exchange(m_lines.progress, {});
        tellProgress(progress["progress"_L1].toDouble(), progress["seconds"_L1].toDouble(),
                     progress["bytes"_L1].toInteger());
    };
    connect(&tool, &ToolProcess::outputLine, this, read);
    connect(&tool, &ToolProcess::errorLine, this, read);
    return tool;
}

void DiscJob::lookAtFilm(std::function<void(const QList<FilmStream> &streams)> then)
{
    lookAtFilm(usualLook, std::move(then));
}

/// Farther where sound is missing and the film goes on; who makes the file holds in memory what it looks at, so that
/// this is as little as shows the most.
void DiscJob::lookAtFilm(qint64 look, std::function<void(const QList<FilmStream> &streams)> then)
{
    runDiscTool(filmStreamsCommand(m_request.tools.transcode.prober, titleReader({}), look), 0.01,
                [this, look, then = std::move(then)](const ToolEnding &ending) {
                    const QList<FilmStream> streams = readFilmStreams(ending.output);
                    if (streams.size() > m_streams.size()) {
                        m_streams = streams;
                        m_look = look;
                    }
                    // It ends as soon as it knows enough, and the reader with it.
                    if (m_streams.isEmpty())
                        return fail(discFailure(lines(), ending), ending.lastWords);
                    const bool goesOn = look < std::min(m_request.plan.bytes, farthestLook);
                    if (goesOn && !planFilm(m_request.plan, title(), m_streams, true).missing.isEmpty())
                        return lookAtFilm(4 * look, then);
                    then(m_streams);
                });
}

std::shared_ptr<ToolCommand> DiscJob::titleReader(const QStringList &options) const
{
    DiscPlan plan = m_request.plan;
    plan.title = title().number;
    QStringList tracks;
    for (const int place : chosenSound(plan, title()))
        tracks.append(QString::number(title().audio[place].streamId));
    for (const int place : chosenSubtitles(plan, title()))
        tracks.append(QString::number(title().subtitles[place].streamId));
    const bool takesAll = !plan.soundTracks && !plan.subtitleTracks;
    const bool isTold = options.contains(u"--tracks"_s) || takesAll;
    return titleReaderCommand(m_request.tools, plan,
                              isTold ? options : options + QStringList{u"--tracks"_s, tracks.join(u',')});
}

void DiscJob::tellStage(const Sentence &stage)
{
    m_told.stage = stage;
    emit progressed(m_told);
}

void DiscJob::beginShare(double share)
{
    m_doneShare += m_share;
    m_share = share;
}

void DiscJob::tellProgress(double fraction, double seconds, qint64 bytes)
{
    constexpr double beforeTheEnd = 0.99;
    const double whole = m_doneShare + m_share * std::clamp(fraction, 0.0, 1.0);
    m_told.fraction = std::max(m_told.fraction.value_or(0), std::min(whole, beforeTheEnd));
    m_told.seconds = seconds;
    m_told.bytes = bytes;
    emit progressed(m_told);
}

bool DiscJob::isGoodStep(const ToolEnding &ending)
{
    if (ending.isGood() && ending.feederExitCode == 0)
        return true;
    // A reader whose film nobody takes any more says that it could not write.
    const bool isReaders = !m_isFed || ending.isGood() || (!m_lines.error.isEmpty() && m_lines.error != "write"_L1);
    const Sentence refused = systemFailureIn(ending.lastWords).sentence;
    fail(isReaders           ? discFailure(m_lines, ending)
         : refused.isEmpty() ? Sentence("The output could not be written."_key)
                             : refused,
         ending.lastWords);
    return false;
}

void DiscJob::fail(const Sentence &sentence, const QString &details)
{
    discard();
    finish({.state = JobState::Failed, .sentence = sentence, .details = details});
}

void DiscJob::addProblem(const Sentence &problem)
{
    m_outcome.problems.append(problem);
}

void DiscJob::addLeftOut(const Sentence &leftOut)
{
    m_outcome.leftOut.append(leftOut);
}

void DiscJob::setFact(const QString &name, const QJsonValue &value)
{
    m_outcome.facts[name] = value;
}

void DiscJob::place(std::shared_ptr<OutputFile> output)
{
    tellStage("Saving…"_key);
    m_workFolder.reset();
    m_output = std::move(output);
    m_outcome.state = m_outcome.problems.isEmpty() ? JobState::Done : JobState::DoneWithProblems;
    beforePlacing(m_outcome, m_output->partPath(), [this] { giveName(); });
}

void DiscJob::giveName()
{
    if (!m_output)  // cancelled meanwhile
        return;
    m_placing = std::make_shared<Placing>(std::exchange(m_output, nullptr), std::nullopt);
    m_placing->start(this, [this](const foundation::Result<QString, Sentence> &path) {
        m_placing.reset();
        if (!path)
            return fail(path.reason());
        m_outcome.outputs = {*path};
        placed(*path);
        m_outcome.state = m_outcome.problems.isEmpty() ? JobState::Done : JobState::DoneWithProblems;
        m_outcome.sentence = m_outcome.problems.value(0);
        finish(m_outcome);
    });
}

void DiscJob::discard()
{
    if (m_placing)
        m_placing->takeBack();
    m_placing.reset();
    m_output.reset();
    m_workFolder.reset();
}

std::unique_ptr<DiscJob> makeDiscJob(DiscRequest request)
{
    switch (request.plan.way) {
        case DiscWay::Image:
            return std::make_unique<DiscImageJob>(std::move(request));
        case DiscWay::Folder:
            return std::make_unique<DiscFolderJob>(std::move(request));
        case DiscWay::Main:
            return std::make_unique<MainTitleJob>(std::move(request));
        case DiscWay::Mpeg:
            return std::make_unique<TitleMpegJob>(std::move(request));
        case DiscWay::Rip:
            return std::make_unique<TitleRipJob>(std::move(request));
        case DiscWay::Mkv:
        case DiscWay::Sound:
            break;
    }
    return std::make_unique<TitleFileJob>(std::move(request));
}

}  // namespace kestrel
