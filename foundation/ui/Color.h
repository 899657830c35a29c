#pragma once

#include <QColor>
#include <QString>

namespace kestrel::foundation {

/// "0074CC" or "#0074CC" as a colour; an invalid colour for anything but six hexadecimal digits.
QColor ColorWithHexString(const QString &hex);

}  // namespace kestrel::foundation
