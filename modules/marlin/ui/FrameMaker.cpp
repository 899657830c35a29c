#include "FrameMaker.h"

#include "foundation/Queues.h"
#include "jobs/ToolProcess.h"
#include "media/SubtitleFile.h"
#include "media/ToolPath.h"

#include <QDateTime>
#include <QFileInfo>
#include <QPointer>

#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr std::chrono::seconds framePatience(20);
constexpr std::chrono::milliseconds restTime(300);  ///< without a request, before the exact picture is worth its time
constexpr qint64 largestFrame = 256 * 1024 * 1024;

}  // namespace

FrameMaker::FrameMaker(QObject *parent) : QObject(parent) {}

FrameMaker::~FrameMaker() = default;

void FrameMaker::request(const Request &request)
{
    m_next = request;
    ++m_requests;
    if (std::exchange(m_isRefining, false))
        m_process.reset();  // which may take seconds, and nobody waits for it any more
    if (!m_process)
        start();
}

void FrameMaker::start()
{
    const Request request = *std::exchange(m_next, std::nullopt);
    m_path = std::make_unique<ToolPath>(request.plan.sources.value(0));
    TranscodePlan plan = request.plan;
    plan.sources = {m_path->path()};
    const MediaTrack *video = request.source.firstOf(MediaTrack::Kind::Video);
    for (TranscodePlan::ExternalSubtitle &subtitle : plan.externalSubtitles) {
        if (subtitle.use == TranscodePlan::SubtitleUse::Burn)
            subtitle.path = readableCopy(subtitle.path, video ? video->frameRate : 0);
    }
    const QStringList arguments =
        previewArguments(plan, request.source, request.seconds, request.size, request.picture, request.place);
    if (arguments.isEmpty()) {
        emit made({});
        return;
    }
    m_process = std::make_unique<ToolProcess>(ToolCommand{.program = request.transcoder,
                                                          .arguments = arguments,
                                                          .timeLimit = framePatience,
                                                          .outputLimit = largestFrame,
                                                          .collectsOutput = true});
    connect(m_process.get(), &ToolProcess::ended, this, [this, request](const ToolEnding &ending) {
        m_process.release()->deleteLater();
        take(request, ending.isGood() ? QImage::fromData(ending.output, "PPM") : QImage());
    });
    m_process->start();
}

/// The last one is kept: every picture needs it.
QString FrameMaker::readableCopy(const QString &path, double frameRate)
{
    const QString original =
        u"%1 %2 %3"_s.arg(path).arg(frameRate).arg(QFileInfo(path).lastModified().toMSecsSinceEpoch());
    if (std::exchange(m_original, original) != original) {
        m_subtitles = std::make_unique<WorkFolder>();
        const auto copy = readableSubtitles(path, m_subtitles->path(), frameRate);
        m_copy = copy ? *copy : path;
    }
    return m_copy;
}

void FrameMaker::take(const Request &request, const QImage &image)
{
    const bool wasRefining = std::exchange(m_isRefining, false);
    if (m_next)
        start();
    else if (request.place == PreviewPlace::KeyPicture && !image.isNull())
        refineLater(request);
    // Where the exact one takes too long, the first one stays.
    if (!image.isNull() || !wasRefining)
        emit made(image);
}

void FrameMaker::refineLater(Request request)
{
    request.place = PreviewPlace::Exact;
    foundation::queue::afterMain(restTime, [self = QPointer(this), request, number = m_requests] {
        if (!self || self->m_requests != number)
            return;
        self->m_isRefining = true;
        self->m_next = request;
        self->start();
    });
}

}  // namespace kestrel
