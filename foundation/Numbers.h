#pragma once

#include <QStringView>

namespace kestrel::foundation {

/// The integer at the start of a text, after blanks and an optional sign, as the platform reads it: 12 for " 12x", 0
/// where there is none, the nearest limit where it does not fit.
qint64 lenientInteger(QStringView text);

}  // namespace kestrel::foundation
