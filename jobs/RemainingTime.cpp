#include "RemainingTime.h"

#include "tarnwell/Localization.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

void RemainingTime::update(double fraction, double elapsedSeconds)
{
    const double interval = elapsedSeconds - m_elapsed;
    if (interval <= 0 || fraction < m_fraction)
        return;
    constexpr double smoothingSeconds = 10;
    const double speed = (fraction - m_fraction) / interval;
    // The plain average until there is more than one smoothing time.
    const double weight = std::max(interval / elapsedSeconds, 1 - std::exp(-interval / smoothingSeconds));
    m_speed += weight * (speed - m_speed);
    m_fraction = fraction;
    m_elapsed = elapsedSeconds;
}

std::optional<double> RemainingTime::seconds() const
{
    constexpr double enoughSeconds = 2;
    if (m_elapsed < enoughSeconds || m_speed <= 0)
        return std::nullopt;
    return (1 - std::min(m_fraction, 1.0)) / m_speed;
}

QString remainingTimeText(double seconds)
{
    const double minutes = std::round(seconds / 60);
    if (seconds < 50)
        return tarnwell::AppLocalizedString(u"less than a minute left"_s);
    if (minutes < 2)
        return tarnwell::AppLocalizedString(u"about a minute left"_s);
    if (minutes < 90)
        return tarnwell::AppLocalizedString(u"about %1 minutes left"_s).arg(minutes);
    const double hours = std::min(std::round(minutes / 60), 999.0);
    return tarnwell::AppLocalizedString(u"about %1 hours left"_s).arg(std::max(hours, 2.0));
}

QString durationText(double seconds)
{
    const auto total = qint64(std::round(seconds));
    const qint64 hours = total / 3600;
    const QString tail = u":%1"_s.arg(total % 60, 2, 10, QChar(u'0'));
    const int minuteDigits = hours > 0 ? 2 : 1;
    const QString minutes = u"%1"_s.arg(total / 60 % 60, minuteDigits, 10, QChar(u'0'));
    return (hours > 0 ? QString::number(hours) + u':' : QString()) + minutes + tail;
}

}  // namespace kestrel
