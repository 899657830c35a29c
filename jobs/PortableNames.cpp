#include "PortableNames.h"

#include "tarnwell/Localization.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

bool isRefused(QChar character)
{
    return character.unicode() < 0x20 || character.unicode() == 0x7F || u"<>:\"/\\|?*"_s.contains(character);
}

/// Names that stand for devices on some systems, whatever follows a dot.
bool isDeviceName(const QString &name)
{
    static const QRegularExpression devices(u"^(con|prn|aux|nul|com[1-9]|lpt[1-9])\\s*(\\.|$)"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

}  // namespace

QString portableName(const QString &name)
{
    QString result = QString::fromUtf8(name.toUtf8());  // well-formed
    for (QChar &character : result) {
        if (isRefused(character))
            character = u'_';
    }
    result = result.trimmed();
    while (result.endsWith(u'.') || result.endsWith(u' '))
        result.chop(1);
    if (result.isEmpty())
        return tarnwell::AppLocalizedString(u"Untitled"_s);
    if (result.startsWith(u'.'))
        result[0] = u'_';
    return isDeviceName(result) ? u'_' + result : result;
}

QString fittingName(QString name, const QString &suffix, qsizetype maximumBytes)
{
    while (!name.isEmpty() && QFile::encodeName(name + suffix).size() > maximumBytes)
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    return name + suffix;
}

}  // namespace kestrel
