#include "CopyrightYear.h"

#include <algorithm>

namespace kestrel {

QString copyrightYear(QDate today)
{
    constexpr int earliestYear = 2021;
    return QString::number(std::max(today.year(), earliestYear));
}

}  // namespace kestrel
