#include "FrameMaker.h"

#include "jobs/ToolProcess.h"
#include "media/ToolPath.h"

namespace kestrel {

namespace {

constexpr std::chrono::seconds framePatience(20);
constexpr qint64 largestFrame = 256 * 1024 * 1024;

}  // namespace

FrameMaker::FrameMaker(QObject *parent) : QObject(parent) {}

FrameMaker::~FrameMaker() = default;

void FrameMaker::request(const Request &request)
{
    m_next = request;
    if (!m_process)
        start();
}

void FrameMaker::start()
{
    Request request = *std::exchange(m_next, std::nullopt);
    m_path = std::make_unique<ToolPath>(request.plan.sources.value(0));
    request.plan.sources = {m_path->path()};
    const QStringList arguments =
        previewArguments(request.plan, request.source, request.seconds, request.size, request.picture);
    if (arguments.isEmpty()) {
        emit made({});
        return;
    }
    m_process = std::make_unique<ToolProcess>(ToolCommand{.program = request.transcoder,
                                                          .arguments = arguments,
                                                          .timeLimit = framePatience,
                                                          .outputLimit = largestFrame,
                                                          .collectsOutput = true});
    connect(m_process.get(), &ToolProcess::ended, this, [this](const ToolEnding &ending) {
        const QImage image = ending.isGood() ? QImage::fromData(ending.output, "PPM") : QImage();
        m_process.release()->deleteLater();
        if (m_next)
            start();
        emit made(image);
    });
    m_process->start();
}

}  // namespace kestrel
