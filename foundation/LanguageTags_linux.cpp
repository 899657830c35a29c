#include "LanguageTags.h"

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

/// As gettext has it: the first of LC_ALL, LC_MESSAGES and LANG that is set is the locale, and the list in LANGUAGE
/// takes its place unless that locale is the C locale, whose language is English.
QStringList systemPreferredLanguages()
{
    QString locale;
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.isEmpty())
            locale = qEnvironmentVariable(variable);
    }
    const QString localeLanguage = languageTag(locale);
    if (localeLanguage.isEmpty())
        return {u"en"_s};

    QStringList languages;
    for (const QString &name : qEnvironmentVariable("LANGUAGE").split(u':'))
        languages.append(languageTag(name));
    languages.removeAll(QString());
    languages.removeDuplicates();
    return languages.isEmpty() ? QStringList(localeLanguage) : languages;
}

}  // namespace kestrel::foundation
