#pragma once

#include <QDate>
#include <QString>

namespace kestrel {

/// The year up to which the product is under copyright, as shown: that of `today` in the Gregorian calendar, in digits
/// 0 to 9 whatever the user's region writes, and never before 2021.
QString copyrightYear(QDate today);

}  // namespace kestrel
