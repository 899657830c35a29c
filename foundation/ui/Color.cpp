#include "Color.h"

#include <algorithm>

namespace kestrel::foundation {

namespace {

/// Stricter than QString::toUInt, which takes blanks, signs and "0x" as well.
bool isHexDigit(QChar character)
{
    const char16_t c = character.unicode();
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

}  // namespace

QColor ColorWithHexString(const QString &hex)
{
    const QString digits = hex.startsWith(u'#') ? hex.mid(1) : hex;
    const bool isColor = digits.size() == 6 && std::all_of(digits.begin(), digits.end(), isHexDigit);
    return isColor ? QColor::fromRgb(digits.toUInt(nullptr, 16)) : QColor();
}

}  // namespace kestrel::foundation
