#include "Motion.h"

#include "foundation/StandardFolders.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

struct AnimationSetting {
    const char *file;
    const char *section;
    const char *key;
    bool (*asksForNone)(const QByteArray &value);
};

bool isOff(const QByteArray &value)
{
    return value == "0" || value.compare("false", Qt::CaseInsensitive) == 0;
}

bool isZero(const QByteArray &value)
{
    bool isNumber = false;
    return value.toDouble(&isNumber) == 0 && isNumber;
}

constexpr AnimationSetting animationSettings[] = {
    {"gtk-4.0/settings.ini", "[Settings]", "gtk-enable-animations", isOff},
    {"gtk-3.0/settings.ini", "[Settings]", "gtk-enable-animations", isOff},
    {"kdeglobals", "[KDE]", "AnimationDurationFactor", isZero},
};

/// The value of one key, read line by line: opening a settings object takes as long as the motion's first frame.
QByteArray settingsValue(const QString &path, const char *section, const char *key)
{
    constexpr qint64 maximumBytes = 256 * 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray presentSection;
    for (const QByteArray &rawLine : file.read(maximumBytes).split('\n')) {
        const QByteArray line = rawLine.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('['))
            presentSection = line;
        else if (equals > 0 && presentSection == section && line.first(equals).trimmed() == key)
            return line.sliced(equals + 1).trimmed();
    }
    return {};
}

}  // namespace

bool reducedMotion()
{
    const QString folder = foundation::configurationDirectory();
    return std::any_of(
        std::begin(animationSettings), std::end(animationSettings), [&](const AnimationSetting &setting) {
            return setting.asksForNone(
                settingsValue(folder + u'/' + QLatin1StringView(setting.file), setting.section, setting.key));
        });
}

}  // namespace kestrel::tarnwell
