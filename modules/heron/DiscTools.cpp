#include "DiscTools.h"

#include "media/MediaProber.h"
#include "modules/marlin/Conversion.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace kestrel {

DiscTools discTools(const JKestrelSettingDispatcher &settings, int processors)
{
    DiscTools tools;
    tools.info = settings.getDiscInfoPath();
    tools.toImage = settings.getDisc2ISOPath();
    tools.cover = settings.getDiscCoverPath();
    const QString folder = QFileInfo(tools.info).absolutePath();
    tools.title = folder + u"/disctitle"_s;
    tools.toFolder = folder + u"/discfolder"_s;
    tools.author = QStandardPaths::findExecutable(u"dvdauthor"_s);
    tools.writer = QStandardPaths::findExecutable(u"dd"_s);
    tools.transcode = transcodeTools(settings, processors);
    return tools;
}

ToolCommand discInfoCommand(const DiscTools &tools, const QString &source)
{
    constexpr qint64 maximumBytes = 4 * 1024 * 1024;
    return {.program = tools.info,
            .arguments = {source},
            .timeLimit = std::chrono::minutes(3),
            .outputLimit = maximumBytes,
            .collectsOutput = true};
}

ToolCommand discCoverCommand(const DiscTools &tools, const QString &source, int title, const QString &target)
{
    QStringList arguments;
    if (title > 0)
        arguments << u"--title"_s << QString::number(title);
    arguments << u"--ffmpeg"_s << tools.transcode.transcoder << source << target;
    return {.program = tools.cover, .arguments = arguments, .timeLimit = std::chrono::minutes(2)};
}

}  // namespace kestrel
