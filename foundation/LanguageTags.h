#pragma once

#include <QStringList>

namespace kestrel::foundation {

/// The user's preferred languages as tags (see `languageTag`), most preferred first and each once; never empty:
/// a system that names none speaks English. Read from the system at every call.
QStringList systemPreferredLanguages();

/// `localeName` (a POSIX or BCP 47 name: "zh_TW.UTF-8", "sr_RS@latin", "pt-BR") as a tag of language, script and
/// region; empty for "C", "POSIX" and what is no locale name. The script stands where the language is commonly written
/// in several ("zh-Hant-TW", "sr-Cyrl-RS") and where the name gives an unusual one; the region only where the name
/// gives it.
QString languageTag(const QString &localeName);

/// The same of a word that may be none: null where it names no language that has a code of two letters.
QString knownLanguageTag(const QString &word);

/// The code of three letters by which files name the language with the tag or code `code` ("deu", "fra"); null where it
/// has none.
QString isoLanguageCode(const QString &code);

/// The name of the language with the tag `code`, written in the language with the tag `displayLanguage` ("Japanese",
/// "日本語"); `code` where it is unknown.
QString languageDisplayName(const QString &code, const QString &displayLanguage);

/// The name for itself of the language with the tag `code` ("日本語", "português (Brasil)"); `code` where it is
/// unknown.
QString languageDisplayName(const QString &code);

}  // namespace kestrel::foundation
