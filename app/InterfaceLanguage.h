#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace kestrel::foundation {
class UserDefaults;
}

namespace kestrel {

/// The interface languages in the order of the Language menu; a menu item's tag is its index here. "Default" follows
/// the system.
inline constexpr std::array<QStringView, 10> supportedLanguages = {u"Default", u"en", u"ja", u"de",      u"fr",
                                                                   u"es",      u"it", u"ko", u"zh-Hans", u"zh-Hant"};

/// Each language's name for itself, as `languageDisplayName` gives it; asking for them costs the start 3 % and the
/// library's tables in memory.
inline constexpr std::array<QStringView, 10> supportedLanguageNames = {u"Default",  u"English", u"日本語",   u"Deutsch",
                                                                       u"français", u"español", u"italiano", u"한국어",
                                                                       u"简体中文", u"繁體中文"};

inline constexpr QStringView customizeLanguageKey = u"kAppCustomizeLanguage";
inline constexpr QStringView appleLanguagesKey = u"AppleLanguages";

/// Settles the language of the whole run before the application object exists: writes "AppleLanguages" = [code] from
/// the user's choice ("kAppCustomizeLanguage") or, where that is "Default", from the first of `systemLanguages` (tags,
/// most preferred first). Stored values that make no sense end in English, with a line on standard error.
void settleInterfaceLanguage(foundation::UserDefaults &defaults, const QStringList &systemLanguages);

}  // namespace kestrel
