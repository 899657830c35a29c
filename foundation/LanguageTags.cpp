#include "LanguageTags.h"

#include <unicode/locdspnm.h>
#include <unicode/locid.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// Languages of which CLDR keeps locales in more than one script.
constexpr QLatin1String severalScripts[] = {"az"_L1, "bs"_L1, "ff"_L1,  "ks"_L1, "mni"_L1, "pa"_L1,  "sat"_L1,
                                            "sd"_L1, "sr"_L1, "shi"_L1, "uz"_L1, "vai"_L1, "yue"_L1, "zh"_L1};

/// POSIX names give a script as a modifier.
constexpr struct {
    QLatin1String modifier;
    QLatin1String script;
} scriptModifiers[] = {
    {"latin"_L1, "Latn"_L1}, {"iqtelif"_L1, "Latn"_L1}, {"cyrillic"_L1, "Cyrl"_L1}, {"devanagari"_L1, "Deva"_L1}};

bool consistsOf(QStringView text, bool (*accepts)(char16_t), qsizetype shortest, qsizetype longest)
{
    return text.size() >= shortest && text.size() <= longest &&
           std::all_of(text.begin(), text.end(), [accepts](QChar c) { return accepts(c.unicode()); });
}

bool isLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

bool isLetterOrDigit(char16_t c)
{
    return isLetter(c) || isDigit(c);
}

struct LocaleParts {
    QString language;
    QString script;
    QString region;
};

/// The parts that a tag takes over; an empty language where `localeName` is malformed. Variants and extensions are
/// dropped.
LocaleParts splitLocaleName(const QString &localeName)
{
    const QString modifier = localeName.section(u'@', 1);
    QString plain = localeName.section(u'@', 0, 0).section(u'.', 0, 0);
    QStringList subtags = plain.replace(u'_', u'-').split(u'-');

    LocaleParts parts;
    if (consistsOf(subtags.first(), isLetter, 2, 3))
        parts.language = subtags.takeFirst();
    if (!subtags.isEmpty() && consistsOf(subtags.first(), isLetter, 4, 4))
        parts.script = subtags.takeFirst();
    if (!subtags.isEmpty() &&
        (consistsOf(subtags.first(), isLetter, 2, 2) || consistsOf(subtags.first(), isDigit, 3, 3)))
        parts.region = subtags.takeFirst();
    for (const auto &[name, script] : scriptModifiers) {
        if (parts.script.isEmpty() && modifier == name)
            parts.script = script;
    }
    const auto isWellFormed = [](const QString &subtag) { return consistsOf(subtag, isLetterOrDigit, 1, 8); };
    return std::all_of(subtags.cbegin(), subtags.cend(), isWellFormed) ? parts : LocaleParts();
}

}  // namespace

QString languageTag(const QString &localeName)
{
    const LocaleParts parts = splitLocaleName(localeName);
    if (parts.language.isEmpty())
        return QString();

    UErrorCode status = U_ZERO_ERROR;
    const QString name = QStringList{parts.language, parts.script, parts.region}.join(u'_').replace("__"_L1, "_"_L1);
    icu::Locale locale(name.toLatin1().constData());
    locale.canonicalize(status);  // replaces retired codes: "iw" is "he", "sh" is "sr_Latn"
    icu::Locale full(locale);
    full.addLikelySubtags(status);
    icu::Locale usual(locale.getLanguage(), locale.getCountry());
    usual.addLikelySubtags(status);
    if (U_FAILURE(status))
        return QString();

    const QLatin1String language(locale.getLanguage());
    const bool needsScript = std::ranges::find(severalScripts, language) != std::end(severalScripts) ||
                             QLatin1String(full.getScript()) != QLatin1String(usual.getScript());
    QString tag = language;
    for (const QLatin1String part :
         {QLatin1String(needsScript ? full.getScript() : ""), QLatin1String(locale.getCountry())}) {
        if (!part.isEmpty())
            tag += u'-' + part;
    }
    return tag;
}

QString knownLanguageTag(const QString &word)
{
    const QString tag = languageTag(word);
    const bool isKnown = tag.section(u'-', 0, 0).size() == 2 && !isoLanguageCode(tag).isEmpty();
    return isKnown ? tag : QString();
}

QString isoLanguageCode(const QString &code)
{
    const QString tag = languageTag(code);
    return tag.isEmpty() ? QString()
                         : QString::fromLatin1(icu::Locale(tag.section(u'-', 0, 0).toLatin1()).getISO3Language());
}

QString languageDisplayName(const QString &code, const QString &displayLanguage)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale = icu::Locale::forLanguageTag(code.toLatin1().constData(), status);
    const icu::Locale display = icu::Locale::forLanguageTag(displayLanguage.toLatin1().constData(), status);
    if (U_FAILURE(status) || languageTag(code).isEmpty())
        return code;
    // Names as people say them ("繁體中文", not "中文（繁體）"), and none made up of codes.
    UDisplayContext contexts[] = {UDISPCTX_DIALECT_NAMES, UDISPCTX_NO_SUBSTITUTE};
    const std::unique_ptr<icu::LocaleDisplayNames> names(
        icu::LocaleDisplayNames::createInstance(display, contexts, int(std::size(contexts))));
    icu::UnicodeString name;
    names->localeDisplayName(locale, name);
    return name.isEmpty() ? code : QString::fromUtf16(name.getBuffer(), name.length());
}

QString languageDisplayName(const QString &code)
{
    return languageDisplayName(code, code);
}

}  // namespace kestrel::foundation
