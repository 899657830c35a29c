#include "SettingLists.h"

#include "foundation/LanguageTags.h"
#include "tarnwell/Localization.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

constexpr const char *languageCodes[] = {
    QT_TRANSLATE_NOOP("TarnwellPublic", "Default"), "en", "ja", "de", "fr", "es", "it", "ko", "zh-Hans", "zh-Hant"};
constexpr const char *resolutions[] = {"240P", "360P",  "480P",
                                       "720P", "1080P", QT_TRANSLATE_NOOP("TarnwellPublic", "Highest Resolution")};
constexpr const char *formats[] = {"mp4", "webm", "flv", "3gp"};
constexpr const char *concurrencies[] = {"1", "2", "3", "5", "10", QT_TRANSLATE_NOOP("TarnwellPublic", "Unlimited")};

const QString highestResolution = QString::fromLatin1(resolutions[std::size(resolutions) - 1]);
const QString unlimited = QString::fromLatin1(concurrencies[std::size(concurrencies) - 1]);
const QString usualConcurrency = u"5"_s;

template <size_t size>
QStringList localized(const char *const (&texts)[size])
{
    QStringList titles;
    for (const char *text : texts)
        titles.append(AppLocalizedString(QString::fromLatin1(text)));
    return titles;
}

}  // namespace

QStringList dvdLanguageTitles(const QString &displayLanguage)
{
    QStringList titles;
    for (const char *code : languageCodes) {
        titles.append(titles.isEmpty() ? AppLocalizedString(QString::fromLatin1(code))
                                       : foundation::languageDisplayName(QString::fromLatin1(code), displayLanguage));
    }
    return titles;
}

qsizetype dvdLanguageIndex(const QString &code)
{
    const auto found =
        std::ranges::find(languageCodes, code, [](const char *listed) { return QString::fromLatin1(listed); });
    return found == std::end(languageCodes) ? 0 : found - languageCodes;
}

QString dvdLanguageAt(qsizetype index)
{
    return index >= 0 && index < qsizetype(std::size(languageCodes)) ? QString::fromLatin1(languageCodes[index])
                                                                     : QString();
}

QStringList resolutionTitles()
{
    return localized(resolutions);
}

QString resolutionTitle(const QString &resolution)
{
    return AppLocalizedString(resolution);
}

QString resolutionOfTitle(const QString &title)
{
    return title == AppLocalizedString(highestResolution) ? highestResolution : title;
}

QStringList formatTitles()
{
    QStringList titles;
    for (const char *format : formats)
        titles.append(QString::fromLatin1(format));
    return titles;
}

QStringList concurrencyTitles()
{
    return localized(concurrencies);
}

QString concurrencyTitle(qint64 downloads)
{
    const QString title = downloads == 0 ? AppLocalizedString(unlimited) : QString::number(downloads);
    return concurrencyTitles().contains(title) ? title : usualConcurrency;
}

qint64 concurrencyOfTitle(const QString &title)
{
    return title == AppLocalizedString(unlimited) ? 0 : title.toLongLong();
}

}  // namespace kestrel
