#include "TranscodeJob.h"

#include "Containers.h"
#include "CoverTag.h"
#include "MediaProber.h"
#include "OutputName.h"
#include "SubtitleFile.h"

#include "foundation/Queues.h"
#include "jobs/OutputFile.h"
#include "tarnwell/Log.h"

#include <QDate>
#include <QPointer>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

/// After a stop the tool may rewrite the whole of a large file. Whoever does not want to wait cancels.
constexpr std::chrono::minutes stopPatience{30};

}  // namespace

TranscodeJob::TranscodeJob(TranscodeRequest request, QObject *parent) : ToolJob(parent), m_request(std::move(request))
{
}

TranscodeJob::~TranscodeJob()
{
    endTool();
    m_placing.reset();  // not taken back
    discard();
}

void TranscodeJob::start()
{
    const QStringList &sources = m_request.plan.sources;
    if (sources.isEmpty())
        return fail("The options of this job could not be read. Add the file again."_key);
    for (const QString &source : sources) {
        if (const Sentence reason = unreadableReason(source); !reason.isEmpty())
            return fail(reason);
        m_sources.emplace_back(source);
    }
    lookAtSource();
}

/// The plan as tools can read it, or why they cannot.
foundation::Result<TranscodePlan, Sentence> TranscodeJob::planWithToolPaths()
{
    TranscodePlan plan = m_request.plan;
    const MediaTrack *video = m_request.information.first().firstOf(MediaTrack::Kind::Video);
    for (qsizetype index = 0; index < plan.sources.size(); ++index)
        plan.sources[index] = m_sources[index].path();
    for (TranscodePlan::ExternalSubtitle &subtitle : plan.externalSubtitles) {
        const QString path = m_companions.emplace_back(subtitle.path).path();
        if (subtitle.use == TranscodePlan::SubtitleUse::Leave)
            continue;
        const auto readable = readableSubtitles(path, m_workFolder->filePath(u"subtitles%1"_s.arg(m_companions.size())),
                                                video ? video->frameRate : 0);
        if (!readable)
            return foundation::Failure{readable.reason()};
        subtitle.path = *readable;
    }
    if (plan.watermark && !plan.watermark->imagePath.isEmpty())
        plan.watermark->imagePath = m_companions.emplace_back(plan.watermark->imagePath).path();
    return plan;
}

void TranscodeJob::prepare()
{
    const QString name =
        m_request.name.isNull() ? outputBaseName(m_request.plan, QDate::currentDate()) : m_request.name;
    m_output = std::make_shared<OutputFile>(outputFolder(m_request.plan, m_request.folder), name,
                                            m_request.plan.preset.extension);
    if (!m_output->isValid())
        return fail(m_output->reason());
    m_outputPath.emplace(m_output->partPath());
    m_workFolder = std::make_unique<WorkFolder>();
    if (!m_workFolder->isValid() || m_outputPath->path().isNull())
        return fail("The folder for temporary files cannot be written."_key);
    auto plan = planWithToolPaths();
    if (!plan)
        return fail(plan.reason());
    m_request.plan = *std::move(plan);
    carryOut();
}

void TranscodeJob::carryOut()
{
    TranscodePlan plan = m_request.plan;
    plan.maximumBytes -= m_correction;
    auto steps = transcodeSteps(plan, m_request.information, m_request.tools.machine,
                                {m_outputPath->path(), m_workFolder->path()});
    if (!steps)
        return fail(steps.reason());
    m_steps = *std::move(steps);
    if (m_steps.expected.maximumBytes > 0)
        m_steps.expected.maximumBytes = m_request.plan.maximumBytes;
    for (auto file = m_steps.files.cbegin(); file != m_steps.files.cend(); ++file) {
        QSaveFile writing(file.key());
        if (!writing.open(QIODevice::WriteOnly) || writing.write(file.value()) < 0 || !writing.commit())
            return fail("The folder for temporary files cannot be written."_key);
    }
    for (const Sentence &note : std::as_const(m_steps.notes))
        emit noted(note);
    const bool isWhole = m_request.information.size() == 1 && m_request.plan.pieces.isEmpty();
    if (isWhole && m_request.plan.speedFactor == 1)
        m_steps.expected.seconds = secondsOfKept(m_steps.expected, m_request.information.first());
    m_step = 0;
    m_doneShare = 0;
    runStep();
}

void TranscodeJob::runStep()
{
    const TranscodeRun &step = m_steps.runs[m_step];
    m_progress = {};
    m_reading = ToolMessages();
    m_messages = ToolMessages(m_request.plan.sources + QStringList{m_outputPath->path(), m_workFolder->path()});
    tellStage(step.stage);
    tarnwell::DNFootLog(u"Converting: %1"_s, step.arguments.join(u' '));
    ToolProcess &tool = run({.program = m_request.tools.transcoder,
                             .arguments = step.arguments,
                             .workingFolder = m_workFolder->path(),
                             .silenceLimit = m_request.tools.stallLimit,
                             .saysItLives = true,
                             .patience = stopPatience},
                            [this](const ToolEnding &ending) { stepEnded(ending); });
    connect(&tool, &ToolProcess::errorLine, this, [this](const QByteArray &line) { m_messages.readLine(line); });
    connect(&tool, &ToolProcess::outputLine, this, [this, &tool](const QByteArray &line) {
        m_progress.readLine(line);
        if (!m_progress.isAtReportEnd())
            return;
        if (m_progress.hasMoved())
            tool.noteProgress();
        tellProgress();
    });
}

void TranscodeJob::stepEnded(const ToolEnding &ending)
{
    const bool isLast = m_step + 1 == m_steps.runs.size();
    if (isStopping() && !isLast)
        return finishStopped();
    m_doneShare += m_steps.runs[m_step].share;
    const bool hasStopped = ending.cause == ToolEnding::Cause::Stopped;
    if (!ending.isGood() && !hasStopped)
        judge(ending, std::nullopt);
    else if (isLast)
        checkOutput(ending);
    else if (m_steps.runs[m_step].coverTag)
        writeTagOf(*m_steps.runs[m_step].coverTag);
    else
        runNextStep();
}

void TranscodeJob::runNextStep()
{
    ++m_step;
    runStep();
}

/// Some are megabytes.
void TranscodeJob::writeTagOf(const CoverTag &tag)
{
    foundation::queue::asyncGlobal([self = QPointer(this), tag] {
        foundation::queue::asyncMain([self, isTaken = writeCoverTag(tag)] {
            if (self && !self->isOver())
                self->takeTag(isTaken);
        });
    });
}

void TranscodeJob::takeTag(std::optional<bool> isTaken)
{
    if (isStopping())
        return finishStopped();
    if (!isTaken)
        return fail("The folder for temporary files cannot be written."_key);
    if (!*isTaken) {
        const QString name = QString::fromLatin1(containerOf(m_request.plan.preset)->name);
        m_steps.expected.tracks.removeIf([](const auto &track) { return track.kind == MediaTrack::Kind::Cover; });
        m_steps.leftOut.append({"The cover picture. %1 cannot hold it."_key, {name}});
    }
    runNextStep();
}

void TranscodeJob::tellProgress()
{
    const TranscodeRun &step = m_steps.runs[m_step];
    const MediaTrack *video = m_request.information.first().firstOf(MediaTrack::Kind::Video);
    double seconds = m_progress.seconds();
    // The report follows the track that is furthest ahead; pictures come late out of an encoder.
    const bool countsPictures = video && !video->isVariableRate && video->frameRate > 0 && m_progress.frames() > 0 &&
                                m_request.plan.frameRate == 0 && m_request.plan.preset.maximumFrameRate == 0 &&
                                m_request.plan.speedFactor == 1;
    if (countsPictures)
        seconds = std::min(seconds, double(m_progress.frames()) / video->frameRate);
    m_told.seconds = seconds;
    m_told.bytes = m_progress.bytes();
    if (step.seconds > 0) {
        // A second attempt begins anew, and files last longer than they say: the bar stays where it is, short of the
        // end.
        constexpr double beforeTheEnd = 0.99;
        const double fraction = m_doneShare + step.share * std::min(seconds / step.seconds, 1.0);
        m_told.fraction = std::max(m_told.fraction.value_or(0), std::min(fraction, beforeTheEnd));
        m_told.stage = seconds >= step.seconds && step.stage.isEmpty() ? Sentence("Finishing…"_key) : step.stage;
    }
    emit progressed(m_told);
}

void TranscodeJob::tellStage(const Sentence &stage)
{
    m_told.stage = stage;
    emit progressed(m_told);
}

}  // namespace kestrel
