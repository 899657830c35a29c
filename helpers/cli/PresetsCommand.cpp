#include "PresetsCommand.h"

#include "foundation/UserDefaults.h"
#include "media/OwnPresets.h"
#include "modules/marlin/Conversion.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

QJsonValue codecOf(const QString &codec)
{
    return codec.isNull() ? QJsonValue::Null : QJsonValue(codec);
}

}  // namespace

ExitStatus runPresets(const Surroundings &surroundings, const QStringList &arguments)
{
    if (tellUsage("presets", arguments))
        return AllDone;
    bool all = false;
    for (const QString &argument : arguments) {
        if (argument != "--all"_L1)
            return wrongUsage(u"\"presets\" takes no \"%1\", only --all."_s.arg(argument));
        all = true;
    }
    const OwnPresets own(foundation::UserDefaults::standardUserDefaults(), ownPresetsKey.toString());
    for (const Preset &preset : own.presets() + (all ? allPresets() : builtInPresets())) {
        if (surroundings.json)
            printLine(QJsonDocument(QJsonObject{{u"id"_s, preset.id},
                                                {u"name"_s, preset.name},
                                                {u"group"_s, preset.group},
                                                {u"extension"_s, preset.extension},
                                                {u"video"_s, codecOf(preset.videoCodec)},
                                                {u"audio"_s, codecOf(preset.audioCodec)}})
                          .toJson(QJsonDocument::Compact));
        else
            printLine((preset.id.leftJustified(22) + u' ' + preset.name).toUtf8());
    }
    return AllDone;
}

}  // namespace kestrel::cli
