#pragma once

#include <QStringView>

namespace kestrel::foundation {

/// The longest of the names below.
inline constexpr qsizetype longestHtmlCharacterName = 8;

/// What stands between "&" and ";": the named characters of HTML 4 (Latin-1, Greek, signs) and a few more. 0 for
/// others; case counts.
char16_t htmlCharacterNamed(QStringView name);

}  // namespace kestrel::foundation
