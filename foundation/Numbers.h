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

}  // namespace kestrel::foundation
