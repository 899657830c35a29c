#include "MediaPlayer.h"

#include "jobs/ToolProcess.h"
#include "media/ToolPath.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr size_t mostWindows = 4;

/// Its own idea of a size is that of the film, which may be larger than the screen.
QStringList windowArguments(const QString &title)
{
    return {u"-hide_banner"_s, u"-loglevel"_s, u"error"_s, u"-autoexit"_s, u"-window_title"_s, title,
            u"-x"_s,           u"960"_s,       u"-y"_s,    u"540"_s};
}

/// It ends well in any case, and names the file where it could not be opened.
bool couldNotOpen(const QString &file, const ToolEnding &ending)
{
    return (!ending.isGood() && ending.cause != ToolEnding::Cause::Cancelled) ||
           ending.lastWords.contains(file + u": "_s);
}

}  // namespace

struct MediaPlayer::Showing {
    QString title;
    std::unique_ptr<ToolPath> path = {};  ///< of a file
    std::unique_ptr<ToolProcess> process = {};
};

MediaPlayer::MediaPlayer(QObject *parent) : QObject(parent) {}

MediaPlayer::~MediaPlayer() = default;

bool MediaPlayer::play(const QString &player, const QString &path, const QString &title)
{
    if (!QFileInfo(player).isExecutable())
        return false;
    auto showing = std::make_unique<Showing>(Showing{.title = title, .path = std::make_unique<ToolPath>(path)});
    const QString file = showing->path->argument();
    show(std::move(showing),
         {.program = player,
          .arguments = windowArguments(title) + QStringList{u"-protocol_whitelist"_s, u"file"_s, u"-i"_s, file}},
         [file](const ToolEnding &ending) { return couldNotOpen(file, ending); });
    return true;
}

bool MediaPlayer::playStream(const QString &player, std::shared_ptr<const ToolCommand> reader,
                             const QStringList &choice, const QString &title,
                             bool (*hasFailed)(const ToolEnding &ending))
{
    if (!QFileInfo(player).isExecutable() || !QFileInfo(reader->program).isExecutable())
        return false;
    const QString pipe = u"pipe:0"_s;
    show(std::make_unique<Showing>(Showing{.title = title}),
         {.program = player,
          .arguments = windowArguments(title) + choice +
                       QStringList{u"-protocol_whitelist"_s, u"pipe"_s, u"-f"_s, u"mpeg"_s, u"-i"_s, pipe},
          .feeder = std::move(reader)},
         [pipe, hasFailed](const ToolEnding &ending) { return couldNotOpen(pipe, ending) || hasFailed(ending); });
    return true;
}

void MediaPlayer::show(std::unique_ptr<Showing> showing, const ToolCommand &command,
                       const std::function<bool(const ToolEnding &)> &hasFailed)
{
    if (m_showing.size() >= mostWindows)
        m_showing.erase(m_showing.begin());
    showing->process = std::make_unique<ToolProcess>(command);
    Showing *started = m_showing.emplace_back(std::move(showing)).get();
    connect(started->process.get(), &ToolProcess::ended, this, [this, started, hasFailed](const ToolEnding &ending) {
        started->process.release()->deleteLater();
        const QString title = started->title;
        std::erase_if(m_showing, [started](const auto &each) { return each.get() == started; });
        if (hasFailed(ending))
            emit failed(title);
    });
    started->process->start();
}

}  // namespace kestrel
