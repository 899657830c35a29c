#pragma once

#include <QString>

#include <optional>

namespace kestrel {

/// Guesses from the speed so far how long the rest takes. The speed is smoothed, so that the guess does not jump.
class RemainingTime {
public:
    /// `fraction` (0 to 1) of the work is done after `elapsedSeconds`; both only grow.
    void update(double fraction, double elapsedSeconds);
    /// Nothing until there is enough to guess from.
    std::optional<double> seconds() const;

private:
    double m_fraction = 0;
    double m_elapsed = 0;
    double m_speed = 0;  ///< fraction a second
};

QString remainingTimeText(double seconds);  ///< localised: "about 2 minutes left"
QString durationText(double seconds);       ///< "1:02:03", "0:42"

}  // namespace kestrel
