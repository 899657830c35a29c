#pragma once

#include <QStringView>
#include <QVariant>

namespace kestrel::foundation {

/// The integer at the start of a text, after blanks and an optional sign, as the platform reads it: 12 for " 12x", 0
/// where there is none, the nearest limit where it does not fit.
qint64 lenientInteger(QStringView text);

/// The integer reading of a stored value: texts as above, numbers truncated towards zero and clamped, booleans 0 and 1,
/// 0 for all else.
qint64 integerValue(const QVariant &value);

/// The boolean reading, as the platform has it: numbers other than 0 are true, and texts that begin, after blanks, a
/// sign and zeros, with a digit or with Y, y, T or t.
bool booleanValue(const QVariant &value);

}  // namespace kestrel::foundation
