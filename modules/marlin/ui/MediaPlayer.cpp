#include "MediaPlayer.h"

#include "jobs/ToolProcess.h"
#include "media/ToolPath.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr size_t mostWindows = 4;

}  // namespace

MediaPlayer::MediaPlayer(QObject *parent) : QObject(parent) {}

MediaPlayer::~MediaPlayer() = default;

bool MediaPlayer::play(const QString &player, const QString &path, const QString &title)
{
    if (!QFileInfo(player).isExecutable())
        return false;
    if (m_showing.size() >= mostWindows)
        m_showing.erase(m_showing.begin());
    auto showing = std::make_unique<Showing>();
    showing->path = std::make_unique<ToolPath>(path);
    // Its own idea of a size is that of the film, which may be larger than the screen.
    const QStringList arguments = {u"-hide_banner"_s,
                                   u"-loglevel"_s,
                                   u"error"_s,
                                   u"-autoexit"_s,
                                   u"-protocol_whitelist"_s,
                                   u"file"_s,
                                   u"-window_title"_s,
                                   title,
                                   u"-x"_s,
                                   u"960"_s,
                                   u"-y"_s,
                                   u"540"_s,
                                   u"-i"_s,
                                   showing->path->argument()};
    showing->process = std::make_unique<ToolProcess>(ToolCommand{.program = player, .arguments = arguments});
    Showing *started = showing.get();
    connect(started->process.get(), &ToolProcess::ended, this, [this, started, title](const ToolEnding &ending) {
        started->process.release()->deleteLater();
        std::erase_if(m_showing, [started](const auto &each) { return each.get() == started; });
        if (!ending.isGood() && ending.cause != ToolEnding::Cause::Cancelled)
            emit failed(title);
    });
    m_showing.push_back(std::move(showing));
    started->process->start();
    return true;
}

}  // namespace kestrel
