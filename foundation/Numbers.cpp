#include "Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrel::foundation {

namespace {

qint64 clampedInteger(double value)
{
    using Limits = std::numeric_limits<qint64>;
    if (std::isnan(value))
        return 0;
    if (value >= 0x1p63)
        return Limits::max();
    return value <= -0x1p63 ? Limits::min() : qint64(value);
}

bool booleanText(QStringView text)
{
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+'))
        text = text.sliced(1);
    const auto first = std::find_if(text.begin(), text.end(), [](QChar c) { return c != u'0'; });
    return first != text.end() && ((*first >= u'1' && *first <= u'9') || QStringView(u"YyTt").contains(*first));
}

}  // namespace

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

bool booleanValue(const QVariant &value)
{
    switch (value.typeId()) {
        case QMetaType::QString:
            return booleanText(value.toString());
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
            return value.toDouble() != 0;
        default:
            return false;
    }
}

qint64 integerValue(const QVariant &value)
{
    switch (value.typeId()) {
        case QMetaType::QString:
            return lenientInteger(value.toString());
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::LongLong:
            return value.toLongLong();
        case QMetaType::ULongLong:
            return qint64(std::min<quint64>(value.toULongLong(), std::numeric_limits<qint64>::max()));
        case QMetaType::Double:
            return clampedInteger(value.toDouble());
        default:
            return 0;
    }
}

}  // namespace kestrel::foundation
