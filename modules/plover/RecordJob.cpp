#include "RecordJob.h"

#include "ScreenCastPortal.h"
#include "foundation/Queues.h"
#include "jobs/OutputFile.h"
#include "media/OutputCheck.h"
#include "media/Placing.h"
#include "media/ToolPath.h"
#include "tarnwell/Log.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr std::chrono::milliseconds watchInterval{500};
/// Until ffmpeg has opened everything and the sound server's clock has settled.
constexpr std::chrono::milliseconds leadWithSound{1200}, leadWithoutSound{600};
constexpr std::chrono::seconds patience{20};

/// By how many seconds the shortest sound is shorter than the pictures; less than 0 where it is longer.
double missingSound(const FoundOutput &found, const RecordPlan &plan)
{
    constexpr double packetsPerSecond = 48000.0 / 1024;
    double pictures = 0;
    double sound = std::numeric_limits<double>::max();
    for (qsizetype index = 0; index < found.information.tracks.size(); ++index) {
        const double packets = double(found.packets.value(index));
        if (found.information.tracks[index].kind == MediaTrack::Kind::Video)
            pictures = packets / plan.rate;
        else if (found.information.tracks[index].kind == MediaTrack::Kind::Audio)
            sound = std::min(sound, packets / packetsPerSecond);
    }
    return sound < std::numeric_limits<double>::max() ? pictures - sound : 0;
}

}  // namespace

void RecordJob::Tally::readLine(const QByteArray &line)
{
    const qsizetype equals = line.indexOf('=');
    const QByteArray key = line.left(std::max<qsizetype>(equals, 0)).trimmed();
    const qint64 value = line.mid(equals + 1).trimmed().toLongLong();
    // The time that is told counts from the first report on; pictures come at a constant rate.
    if (key == "frame")
        pictures = std::max(pictures, value);
    else if (key == "total_size")
        bytes = std::max(bytes, value);
    else if (key == "dup_frames")
        missed = std::max(missed, value);
}

RecordJob::RecordJob(RecordPlan plan, const QString &folder, RecordTools tools, QObject *parent)
    : ToolJob(parent),
      m_recording{.plan = std::move(plan), .folder = folder},
      m_tools(std::move(tools))
{
    if (m_recording.plan.name.isEmpty())
        m_recording.plan.name = newRecordingName();
    connect(&m_watch, &QTimer::timeout, this, &RecordJob::watch);
}

RecordJob::RecordJob(UnfinishedRecording recording, RecordTools tools, QObject *parent)
    : ToolJob(parent),
      m_recording(std::move(recording)),
      m_tools(std::move(tools)),
      m_isRecovery(true)
{
}

RecordJob::~RecordJob()
{
    endTool();
    if (m_placing)
        m_placing->takeBack();
}

void RecordJob::start()
{
    if (m_isRecovery)
        return endRecording();
    const auto target = captureTarget(m_recording.plan);
    if (!target)
        return fail(target.reason());
    setTarget(*target);
    if (const auto space = m_tools.diskSpace(m_recording.folder); space && space->available <= m_tools.reservedBytes)
        return fail("There is too little space on the disk to record."_key);
    constexpr QSize usualSize(1920, 1080);  // where only the pictures tell
    if (m_tools.hardwareDevice)
        m_hardwareDevice = m_tools.hardwareDevice(m_target.area.isEmpty() ? usualSize : m_target.area.size());
    m_watch.start(watchInterval);
    if (m_target.isShared)
        openScreen();
    else
        beginStretch();
}

/// `feeder` hands over the pictures, where ffmpeg does not get them itself.
void RecordJob::runStretch(std::shared_ptr<const ToolCommand> feeder)
{
    const RecordPlan &plan = m_recording.plan;
    OutputFile part(m_recording.folder, plan.name, u"mkv"_s);
    if (!part.isValid())
        return m_recording.stretches.isEmpty() ? fail(part.reason()) : endRecording();
    part.keepPart();
    m_recording.stretches.append(part.partPath());
    if (!m_recording.write())
        tarnwell::DNFootLog(u"A recording could not be written down; it is lost where Kestrel is killed"_s);

    const auto lead = plan.sound == RecordPlan::Sound::None ? leadWithoutSound : leadWithSound;
    const auto now = std::chrono::milliseconds(QDateTime::currentMSecsSinceEpoch());
    m_stretch = {};
    m_looksInVain = 0;
    m_hasSoundEnded = false;
    m_usualDevice.clear();  // it may have changed in a pause
    m_looksForSound = m_isSilent ? m_looksForSound : 0;
    m_messages = ToolMessages({part.partPath()});
    if (m_size.isEmpty())
        m_size = m_target.area.size();
    const RecordStretch stretch{.target = m_target,
                                .size = m_size,
                                .begin = now + lead,
                                .seconds = plan.seconds > 0 ? plan.seconds - recordedSeconds() : 0,
                                .isSilent = m_isSilent,
                                .hardwareDevice = m_hardwareDevice,
                                .output = part.partPath()};
    const QStringList arguments = recordArguments(plan, stretch);
    tarnwell::DNFootLog(u"Recording: %1"_s, arguments.join(u' '));
    ToolProcess &tool =
        run({.program = m_tools.transcoder, .arguments = arguments, .patience = patience, .feeder = std::move(feeder)},
            [this](const ToolEnding &ending) { stretchEnded(ending); });
    m_recorder = &tool;
    connect(&tool, &ToolProcess::errorLine, this, [this](const QByteArray &line) {
        if (m_target.isShared && line.startsWith('{'))
            readScreen(line);
        else
            m_messages.readLine(line);
        noteSoundEnd(line);
    });
    connect(&tool, &ToolProcess::outputLine, this, &RecordJob::readProgress);
}

void RecordJob::readProgress(const QByteArray &line)
{
    // A screen on which nothing changes has few pictures of its own, and many a camera gives fewer than it is asked
    // for.
    const bool mayRepeat = m_target.isShared || m_recording.plan.what == RecordPlan::What::Camera;
    if (!mayRepeat || !line.startsWith("dup_frames"))
        m_stretch.readLine(line);
    if (!line.startsWith("progress"))
        return;
    JobProgress progress{.seconds = recordedSeconds(), .bytes = m_recorded.bytes + m_stretch.bytes};
    if (const double wanted = m_recording.plan.seconds; wanted > 0)
        progress.fraction = std::min(progress.seconds / wanted, 0.99);
    emit progressed(progress);
}

void RecordJob::stretchEnded(const ToolEnding &ending)
{
    m_recorder.clear();
    const bool hasPictures = m_stretch.pictures > 0;
    m_recorded = {.pictures = m_recorded.pictures + m_stretch.pictures,
                  .bytes = m_recorded.bytes + m_stretch.bytes,
                  .missed = m_recorded.missed + m_stretch.missed};
    m_stretch = {};
    if (hasPictures) {
        m_failures = 0;
    } else if (!m_recording.stretches.isEmpty()) {
        // Nothing came of it: there is nothing to be joined.
        QFile::remove(m_recording.stretches.takeLast());
        m_recording.write();
    }
    constexpr double tolerance = 0.2;
    const bool isComplete = m_recording.plan.seconds > 0 && recordedSeconds() > m_recording.plan.seconds - tolerance;
    if (isStopping() || m_isToEnd || isComplete)
        return endRecording();
    if (ending.cause == ToolEnding::Cause::Stopped) {
        if (!m_isHolding)  // gone on with before it had ended
            beginStretch();
        return;
    }
    goOnAfterFailure(ending);
}

void RecordJob::stop()
{
    if (m_isFinishing)
        return;
    ToolJob::stop();
    if (m_recorder)
        return;
    if (!m_screen || !m_recording.stretches.isEmpty())
        return endRecording();
    discard();  // nobody has answered the desktop's question
    finish({.state = JobState::Cancelled});
}

void RecordJob::setPaused(bool paused)
{
    if (m_isFinishing || isStopping() || m_isHolding == paused)
        return;
    m_isHolding = paused;
    m_isSilent = m_isSilent && paused;
    if (paused && m_recorder)
        m_recorder->stop();
    else if (!paused && !m_recorder)
        beginStretch();
}

void RecordJob::endRecording()
{
    m_isFinishing = true;
    m_watch.stop();
    releaseScreen();
    if (m_isScreenMissing && m_recording.stretches.isEmpty())
        return fail("The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?"_key);
    if (m_isScreenMissing)
        m_problems.append("The recording was interrupted."_key);
    if (m_recording.stretches.isEmpty())
        return fail(m_isRecovery ? Sentence("Nothing of the recording is left."_key)
                                 : Sentence("Nothing was recorded."_key));
    emit progressed({.seconds = recordedSeconds(), .bytes = m_recorded.bytes, .stage = Sentence("Finishing…"_key)});
    measure();
}

/// One stretch after another, where there are several.
void RecordJob::measure()
{
    const qsizetype number = m_spans.size();
    if (number == m_recording.stretches.size() || m_recording.stretches.size() == 1)
        return join();
    run({.program = m_tools.prober,
         .arguments = stretchSpanArguments(m_recording.stretches[number]),
         .timeLimit = patience,
         .collectsOutput = true},
        [this](const ToolEnding &ending) {
            m_spans.append(stretchSpan(ending.output));
            measure();
        });
}

void RecordJob::join()
{
    qint64 bytes = 0;
    for (const QString &stretch : std::as_const(m_recording.stretches))
        bytes += QFileInfo(stretch).size();
    const auto space = m_tools.diskSpace(m_recording.folder);
    constexpr qint64 margin = 10'000'000;
    if (space && space->available < bytes + margin)
        return placeAsItIs("The disk is too full to finish the recording: it stays a Matroska file."_key,
                           "The disk is too full to finish the recording: it stays in %1 Matroska files."_key);
    m_workFolder = std::make_unique<WorkFolder>();
    m_output = std::make_shared<OutputFile>(m_recording.folder, m_recording.plan.name, m_recording.plan.extension());
    const QString list = m_workFolder->filePath(u"list.txt"_s);
    QSaveFile file(list);
    const bool isListed = file.open(QIODevice::WriteOnly) &&
                          file.write(joinList(m_recording.stretches, m_spans, m_recording.plan.rate)) > 0 &&
                          file.commit();
    if (!isListed || !m_output->isValid())
        return placeAsItIs(isListed ? m_output->reason()
                                    : Sentence("The folder for temporary files cannot be written."_key));
    m_messages = ToolMessages({m_output->partPath(), m_workFolder->path()});
    const ToolProcess &tool =
        run({.program = m_tools.transcoder, .arguments = finishArguments(list, m_output->partPath())},
            [this](const ToolEnding &ending) { check(ending); });
    connect(&tool, &ToolProcess::errorLine, this, [this](const QByteArray &line) { m_messages.readLine(line); });
}

/// By the joins.
double RecordJob::secondsCut() const
{
    double seconds = 0;
    for (qsizetype number = 0; number + 1 < m_spans.size(); ++number)
        seconds += std::max(m_spans[number].picturesEnd - joiningEnd(m_spans[number], m_recording.plan.rate), 0.0);
    return seconds;
}

void RecordJob::check(const ToolEnding &joining)
{
    const auto placeUnfinished = [this] {
        placeAsItIs("The recording could not be finished: it stays a Matroska file."_key,
                    "The recording could not be finished: it stays in %1 Matroska files."_key);
    };
    if (!joining.isGood())
        return placeUnfinished();
    const QString part = m_output->partPath();
    const qint64 bytes = QFileInfo(part).size();
    run(outputReportCommand(m_tools.prober, ToolPath(part).argument(), bytes),
        [this, part, placeUnfinished](const ToolEnding &probing) {
            const auto found =
                probing.isGood() ? parseOutputReport(probing.output, QFileInfo(part).size()) : std::nullopt;
            OutputExpectation expected;
            expected.tracks = recordedTracks(m_recording.plan);
            if (!m_isRecovery)
                expected.seconds = recordedSeconds() - secondsCut();
            const OutputFindings findings = found ? compareOutput(expected, {}, *found) : OutputFindings();
            if (!found || findings.isEmpty || findings.isShort || !findings.damage.isEmpty() ||
                !findings.mismatch.isEmpty()) {
                tarnwell::DNFootLog(u"The finished recording is not whole: %1"_s, m_messages.text());
                return placeUnfinished();
            }
            const double missing = missingSound(*found, m_recording.plan);
            if (std::abs(missing) > 2)
                m_problems.append({missing > 0 ? "The last %1 s have no sound: the sound server went away."_key
                                               : "The last %1 s have no picture."_key,
                                   {QString::number(std::lround(std::abs(missing)))}});
            JobOutcome outcome{.state = m_problems.isEmpty() ? JobState::Done : JobState::DoneWithProblems,
                               .problems = m_problems};
            if (m_isRecovery)
                outcome.sentence = "Recovered after an interruption."_key;
            outcome.facts = facts();
            constexpr qint64 share = 100;
            if (m_recorded.missed > m_recorded.pictures / share)
                outcome.sentence = {"%1 of %2 pictures came too late: the one before stands for them."_key,
                                    {QString::number(m_recorded.missed), QString::number(m_recorded.pictures)}};
            place(std::move(outcome));
        });
}

/// Pictures of a camera have no times that they should have come at.
QJsonObject RecordJob::facts() const
{
    const bool isCounted = !m_isRecovery && m_recording.plan.what != RecordPlan::What::Camera;
    return isCounted ? QJsonObject{{u"dropped"_s, m_recorded.missed}} : QJsonObject();
}

void RecordJob::place(JobOutcome outcome)
{
    m_placing = std::make_shared<Placing>(std::exchange(m_output, nullptr), std::nullopt);
    m_placing->start(this,
                     [this, outcome = std::move(outcome)](const foundation::Result<QString, Sentence> &path) mutable {
                         m_placing.reset();
                         if (!path)
                             return placeAsItIs(path.reason());
                         outcome.outputs = {*path};
                         removeStretches();
                         finish(outcome);
                     });
}

/// The stretches themselves, under names that show: nothing that was recorded is lost. What cannot be placed is found
/// at the next start.
void RecordJob::placeAsItIs(const Sentence &problem, tarnwell::TextKey problemOfSeveral)
{
    m_output.reset();
    JobOutcome outcome{.state = JobState::DoneWithProblems, .details = m_messages.text(), .problems = m_problems};
    outcome.facts = facts();
    for (const QString &stretch : std::as_const(m_recording.stretches)) {
        OutputFile place(m_recording.folder, m_recording.plan.name, u"mkv"_s);
        const QByteArray hidden = QFile::encodeName(stretch), part = QFile::encodeName(place.partPath());
        // Takes the place of the empty part, which has the rules for names.
        if (!place.isValid() || ::rename(hidden.constData(), part.constData()) != 0)
            continue;
        if (const auto path = place.publish())
            outcome.outputs.append(*path);
        else
            ::rename(part.constData(), hidden.constData());
    }
    const qsizetype count = outcome.outputs.size();
    if (count == 0)
        return finish({.state = JobState::Failed, .sentence = problem, .details = outcome.details});
    if (count == m_recording.stretches.size())
        m_recording.forget();
    const bool isSeveral = count > 1 && !problemOfSeveral.isEmpty();
    outcome.problems.append(isSeveral ? Sentence(problemOfSeveral, {QString::number(count)}) : problem);
    finish(outcome);
}

void RecordJob::fail(const Sentence &sentence, const QString &details)
{
    m_watch.stop();
    discard();
    finish({.state = JobState::Failed, .sentence = sentence, .details = details});
}

void RecordJob::removeStretches()
{
    for (const QString &stretch : std::exchange(m_recording.stretches, {}))
        QFile::remove(stretch);
    m_recording.forget();
}

void RecordJob::discard()
{
    m_watch.stop();
    releaseScreen();
    if (m_placing)
        m_placing->takeBack();
    m_placing.reset();
    m_output.reset();
    removeStretches();
}

}  // namespace kestrel
