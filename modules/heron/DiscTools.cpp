#include "DiscTools.h"

#include "DiscPlan.h"

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

std::shared_ptr<ToolCommand> titleReaderCommand(const DiscTools &tools, const DiscPlan &plan,
                                                const QStringList &options)
{
    QStringList arguments;
    if (plan.title > 0)
        arguments << u"--title"_s << QString::number(plan.title);
    if (!plan.takesAllChapters()) {
        const int last = plan.lastChapter == 0 ? 999 : plan.lastChapter;
        arguments << u"--chapters"_s << u"%1-%2"_s.arg(plan.firstChapter).arg(last);
    }
    if (plan.angle > 1)
        arguments << u"--angle"_s << QString::number(plan.angle);
    return std::make_shared<ToolCommand>(
        ToolCommand{.program = tools.title, .arguments = arguments + options + QStringList{plan.source}});
}

ToolCommand discPictureCheckCommand(const DiscTools &tools, const QString &source)
{
    return {.program = tools.cover,
            .arguments = {u"--check"_s, u"--ffmpeg"_s, tools.transcode.transcoder, source},
            .timeLimit = std::chrono::minutes(2)};
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
