#include "MediaProber.h"

#include "ToolPath.h"

#include "foundation/FileNames.h"

#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace kestrel {

using foundation::Failure;
using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr tarnwell::TextKey noMedia = "This is no video or sound file."_key;

Sentence probeFailure(const ToolEnding &ending)
{
    using enum ToolEnding::Cause;
    if (ending.cause == CouldNotStart)
        return "The tool that reads media files is missing. Please install the application again."_key;
    if (ending.cause != Exited)
        return "This file could not be read."_key;
    if (ending.lastWords.contains("moov atom not found"_L1))
        return "The file is damaged or incomplete."_key;
    if (ending.lastWords.contains("Input/output error"_L1))
        return "The disk could not be read or written."_key;
    return noMedia;
}

}  // namespace

QString proberBeside(const QString &transcoderPath)
{
    return QFileInfo(transcoderPath).path() + "/ffprobe"_L1;
}

QStringList inputOptions()
{
    return {u"-protocol_whitelist"_s, u"file"_s, u"-probesize"_s, u"50M"_s, u"-analyzeduration"_s, u"100M"_s};
}

ToolCommand probeCommand(const QString &proberPath, const QString &argument, std::chrono::milliseconds timeLimit)
{
    return {.program = proberPath,
            .arguments = QStringList{u"-v"_s, u"error"_s} + inputOptions() +
                         QStringList{u"-show_format"_s, u"-show_streams"_s, u"-show_chapters"_s, u"-of"_s, u"json"_s,
                                     u"-i"_s, argument},
            .timeLimit = timeLimit,
            .outputLimit = maximumReportBytes,
            .collectsOutput = true};
}

std::optional<ToolCommand> pictureDataCommand(const QString &proberPath, const QString &argument,
                                              const MediaInformation &information, std::chrono::milliseconds timeLimit)
{
    const MediaTrack *video = information.firstOf(MediaTrack::Kind::Video);
    if (!video || !video->isHdr() || !video->masteringDisplay.isNull())
        return std::nullopt;
    ToolCommand command = probeCommand(proberPath, argument, timeLimit);
    command.arguments = QStringList{u"-v"_s, u"error"_s} + inputOptions() +
                        QStringList{u"-select_streams"_s,
                                    QString::number(video->index),
                                    u"-show_frames"_s,
                                    u"-read_intervals"_s,
                                    u"%+#1"_s,
                                    u"-of"_s,
                                    u"json"_s,
                                    u"-i"_s,
                                    argument};
    return command;
}

foundation::Result<MediaInformation, Sentence> probeResult(const ToolEnding &ending)
{
    if (!ending.isGood())
        return Failure{probeFailure(ending)};
    const auto information = parseMediaInformation(ending.output);
    if (!information)
        return Failure{Sentence(noMedia)};
    if (!information->canBeConverted()) {
        const bool hasPicture = information->firstOf(MediaTrack::Kind::Cover);
        return Failure{
            Sentence(hasPicture ? noMedia : "This file is damaged, or it holds neither video nor sound."_key)};
    }
    return *information;
}

Sentence unreadableReason(const QString &path)
{
    const foundation::FileFacts file = foundation::fileFacts(path);
    if (file.kind == foundation::FileKind::Missing)
        return "There is no such file."_key;
    if (file.kind != foundation::FileKind::File)  // pipes and devices would keep the tool waiting
        return noMedia;
    return file.isReadable ? Sentence() : Sentence("You are not allowed to read this file."_key);
}

MediaProber::MediaProber(std::chrono::milliseconds timeLimit, QObject *parent) : QObject(parent), m_timeLimit(timeLimit)
{
}

MediaProber::~MediaProber() = default;

void MediaProber::probe(qint64 id, const QString &proberPath, const QString &path)
{
    m_pending.append({id, proberPath, path});
    startPendingLater();
}

void MediaProber::forget(const QList<qint64> &ids)
{
    const QSet<qint64> forgotten(ids.begin(), ids.end());
    m_pending.removeIf([&](const Request &request) { return forgotten.contains(request.id); });
}

void MediaProber::startPendingLater()
{
    QMetaObject::invokeMethod(this, &MediaProber::startPending, Qt::QueuedConnection);
}

void MediaProber::startPending()
{
    constexpr size_t maximumRunning = 2;
    while (!m_pending.isEmpty() && m_running.size() < maximumRunning) {
        const Request request = m_pending.takeFirst();
        const Sentence reason = unreadableReason(request.path);
        if (reason.isEmpty())
            start(request);
        else
            emit probed(request.id, Failure{reason});
    }
}

void MediaProber::start(const Request &request)
{
    Probe &probe = *m_running.emplace_back(std::make_unique<Probe>());
    probe.request = request;
    probe.path = std::make_unique<ToolPath>(request.path);
    runTool(probe, probeCommand(request.proberPath, probe.path->argument(), m_timeLimit),
            [this, &probe](const ToolEnding &ending) {
                const Answer answer = probeResult(ending);
                const auto second =
                    answer ? pictureDataCommand(probe.request.proberPath, probe.path->argument(), *answer, m_timeLimit)
                           : std::nullopt;
                if (second)
                    lookAtPicture(probe, *second, *answer);
                else
                    finish(probe, answer);
            });
}

void MediaProber::runTool(Probe &probe, const ToolCommand &command, std::function<void(const ToolEnding &)> then)
{
    if (probe.process)
        probe.process.release()->deleteLater();  // it is in the middle of its signal
    probe.process = std::make_unique<ToolProcess>(command);
    connect(probe.process.get(), &ToolProcess::ended, this, std::move(then));
    probe.process->start();
}

void MediaProber::lookAtPicture(Probe &probe, const ToolCommand &command, MediaInformation information)
{
    runTool(probe, command, [this, &probe, information = std::move(information)](const ToolEnding &ending) mutable {
        if (ending.isGood())
            addPictureData(ending.output, information);
        finish(probe, information);
    });
}

void MediaProber::finish(const Probe &probe, const Answer &answer)
{
    const qint64 id = probe.request.id;
    std::erase_if(m_running, [&probe](std::unique_ptr<Probe> &running) {
        if (running.get() != &probe)
            return false;
        running->process.release()->deleteLater();  // it is in the middle of its signal
        return true;
    });
    emit probed(id, answer);
    startPendingLater();
}

}  // namespace kestrel
