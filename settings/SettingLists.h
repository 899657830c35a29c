#pragma once

#include <QStringList>

namespace kestrel {

/// The fixed lists of the settings window: titles in display order and in the interface language, and how they stand
/// for stored values. A stored value that is in no list stays stored; each list says what it shows then.

QStringList dvdLanguageTitles(const QString &displayLanguage);  ///< names written in that language
qsizetype dvdLanguageIndex(const QString &code);                ///< the first for a code that is not listed
QString dvdLanguageAt(qsizetype index);                         ///< the code; null for no index of the list

QStringList resolutionTitles();
QString resolutionTitle(const QString &resolution);  ///< no title of the list where it is not listed
QString resolutionOfTitle(const QString &title);

QStringList formatTitles();  ///< a format is its title

QStringList concurrencyTitles();
QString concurrencyTitle(qint64 downloads);  ///< "5" for a number that is not listed
qint64 concurrencyOfTitle(const QString &title);

}  // namespace kestrel
