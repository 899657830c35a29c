#include "Options.h"

#include <QStringList>

namespace kestrel::cli {

bool readTime(const QString &text, double &seconds)
{
    constexpr double longest = 1000.0 * 3600;
    const QStringList parts = text.split(u':');
    if (parts.size() > 3)
        return false;
    seconds = 0;
    for (const QString &part : parts) {
        double number = 0;
        if (!readNumber(part, 0, longest, number))
            return false;
        seconds = seconds * 60 + number;
    }
    return seconds <= longest;
}

bool readBytes(const QString &text, qint64 &bytes)
{
    static constexpr struct {
        char16_t unit;
        double factor;
    } units[] = {{u'k', 1e3}, {u'M', 1e6}, {u'G', 1e9}};
    QString number = text;
    double factor = 1;
    for (const auto &[unit, value] : units) {
        if (number.endsWith(unit, Qt::CaseInsensitive)) {
            number.chop(1);
            factor = value;
            break;
        }
    }
    double value = 0;
    if (!readNumber(number, 0, 1e15 / factor, value) || value <= 0)
        return false;
    bytes = qint64(value * factor);
    return true;
}

}  // namespace kestrel::cli
