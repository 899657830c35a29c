#include "Numbers.h"

#include <limits>

namespace kestrel::foundation {

qint64 lenientInteger(QStringView text)
{
    text = text.trimmed();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.mid(1);
    // Accumulated below zero, where the range is one wider.
    qint64 value = 0;
    for (const QChar character : text) {
        const int digit = character.unicode() - u'0';
        if (digit < 0 || digit > 9)
            break;
        if (__builtin_mul_overflow(value, qint64(10), &value) || __builtin_sub_overflow(value, qint64(digit), &value))
            return negative ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    }
    if (negative)
        return value;
    return value == std::numeric_limits<qint64>::min() ? std::numeric_limits<qint64>::max() : -value;
}

}  // namespace kestrel::foundation
