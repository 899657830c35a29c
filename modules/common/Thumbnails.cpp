#include "Thumbnails.h"

#include "foundation/Queues.h"
#include "jobs/ToolProcess.h"
#include "media/ToolPath.h"

#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int mostKept = 400;
constexpr size_t mostAtOnce = 2;
constexpr qsizetype mostPending = 64;  ///< older ones have scrolled out of sight
constexpr qint64 largestPicture = 8 * 1024 * 1024;
constexpr std::chrono::seconds patience(20);

}  // namespace

QString Thumbnails::Request::key() const
{
    return QString::number(seconds, 'f', 1) + u'@' + path;
}

Thumbnails::Thumbnails(QSize size, QObject *parent) : QObject(parent), m_size(size), m_pictures(mostKept) {}

Thumbnails::~Thumbnails() = default;

const QPixmap *Thumbnails::picture(const QString &path, double seconds)
{
    const Request request{path, seconds};
    if (const QPixmap *known = m_pictures.object(request.key()))
        return known;
    const bool isRunning = std::ranges::any_of(m_running, [&](const auto &run) { return run->request == request; });
    if (isRunning || m_transcoder.isEmpty())
        return nullptr;
    m_pending.removeOne(request);
    m_pending.append(request);
    if (m_pending.size() > mostPending)
        m_pending.removeFirst();
    // Not from within a view's painting.
    foundation::queue::asyncMain([guard = QPointer(this)] {
        if (guard)
            guard->startPending();
    });
    return nullptr;
}

void Thumbnails::startPending()
{
    while (m_running.size() < mostAtOnce && !m_pending.isEmpty())
        start(m_pending.takeLast());
}

void Thumbnails::start(const Request &request)
{
    auto run = std::make_unique<Run>();
    run->request = request;
    run->path = std::make_unique<ToolPath>(request.path);
    const QSize pixels = m_size * m_scale;
    const QString filter =
        u"scale=w='min(%1,iw*sar)':h='min(%2,ih)':force_original_aspect_ratio=decrease,setsar=1"_s.arg(pixels.width())
            .arg(pixels.height());
    run->process = std::make_unique<ToolProcess>(ToolCommand{.program = m_transcoder,
                                                             .arguments = {u"-hide_banner"_s,
                                                                           u"-nostdin"_s,
                                                                           u"-loglevel"_s,
                                                                           u"error"_s,
                                                                           u"-threads"_s,
                                                                           u"1"_s,
                                                                           u"-filter_threads"_s,
                                                                           u"1"_s,
                                                                           u"-noaccurate_seek"_s,
                                                                           u"-protocol_whitelist"_s,
                                                                           u"file"_s,
                                                                           u"-ss"_s,
                                                                           QString::number(request.seconds, 'f', 3),
                                                                           u"-i"_s,
                                                                           run->path->argument(),
                                                                           u"-map"_s,
                                                                           u"0:v:0"_s,
                                                                           u"-vf"_s,
                                                                           filter,
                                                                           u"-frames:v"_s,
                                                                           u"1"_s,
                                                                           u"-c:v"_s,
                                                                           u"ppm"_s,
                                                                           u"-pix_fmt"_s,
                                                                           u"rgb24"_s,
                                                                           u"-f"_s,
                                                                           u"image2pipe"_s,
                                                                           u"pipe:1"_s},
                                                             .timeLimit = patience,
                                                             .outputLimit = largestPicture,
                                                             .collectsOutput = true});
    Run *started = run.get();
    connect(run->process.get(), &ToolProcess::ended, this, [this, started](const ToolEnding &ending) {
        take(started, ending.isGood() ? ending.output : QByteArray());
    });
    m_running.push_back(std::move(run));
    started->process->start();
}

void Thumbnails::take(Run *run, const QByteArray &output)
{
    auto picture = std::make_unique<QPixmap>();
    picture->loadFromData(output, "PPM");
    const Request request = run->request;
    m_pictures.insert(request.key(), picture.release());
    run->process.release()->deleteLater();  // it is its signal that brought us here
    std::erase_if(m_running, [run](const auto &each) { return each.get() == run; });
    emit made(request.path);
    startPending();
}

}  // namespace kestrel
