#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace kestrel {

class UPParser;

/// What the automatic check shows.
enum class LaunchOutcome { Nothing, NewVersion, Promotion };

struct LaunchDecision {
    LaunchOutcome outcome = LaunchOutcome::Nothing;
    const char *reason = "";  ///< in English, for the log
};

/// What the user's defaults remember of promotions.
struct PromotionMemory {
    QString day;                 ///< "yyyy-MM-dd" on which one was last shown; null where none was
    std::optional<qint64> rate;  ///< replaces the item's own, once one was declined
};

/// `parser` may be null. `today` is "yyyy-MM-dd"; `draw` gives a random number, uniform over its 32 bits, and is asked
/// only where a promotion is due today.
LaunchDecision decideAtLaunch(const UPParser *parser, const PromotionMemory &memory, const QString &today,
                              const std::function<quint32()> &draw);

}  // namespace kestrel
