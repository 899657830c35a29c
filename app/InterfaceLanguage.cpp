#include "InterfaceLanguage.h"

#include "foundation/UserDefaults.h"

#include <algorithm>
#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString supportedLanguageFor(const QString &systemLanguage)
{
    // "Default" stays in the walk: no language tag begins with it.
    const auto found = std::find_if(supportedLanguages.begin(), supportedLanguages.end(),
                                    [&](QStringView code) { return systemLanguage.startsWith(code); });
    return found == supportedLanguages.end() ? u"en"_s : found->toString();
}

/// The language to write, null where none is to be written; nothing where the stored values make no sense.
std::optional<QString> chosenLanguage(foundation::UserDefaults &defaults, const QStringList &systemLanguages)
{
    const QString choice = defaults.stringForKey(customizeLanguageKey.toString());
    const QVariant present = defaults.objectForKey(appleLanguagesKey.toString());
    if (choice.isNull())
        return {};
    if (choice != supportedLanguages.front()) {
        if (!present.isValid())
            return choice;
        if (present.typeId() != QMetaType::QVariantList || present.toList().isEmpty())
            return {};
        const QVariant first = present.toList().constFirst();
        const bool isSame = first.typeId() == QMetaType::QString && first.toString() == choice;
        return isSame ? QString() : choice;
    }
    defaults.removeObjectForKey(appleLanguagesKey.toString());
    if (systemLanguages.isEmpty())
        return {};
    return supportedLanguageFor(systemLanguages.constFirst());
}

}  // namespace

void settleInterfaceLanguage(foundation::UserDefaults &defaults, const QStringList &systemLanguages)
{
    defaults.registerDefaults({{customizeLanguageKey.toString(), supportedLanguages.front().toString()}});
    std::optional<QString> language = chosenLanguage(defaults, systemLanguages);
    if (!language) {
        std::fputs("configure application language error, force to use english.\n", stderr);
        language = u"en"_s;
    }
    if (!language->isNull())
        defaults.setObject(QVariantList{*language}, appleLanguagesKey.toString());
}

}  // namespace kestrel
