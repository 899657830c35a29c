#include "LaunchDecision.h"

#include "UPParser.h"

namespace kestrel {

LaunchDecision decideAtLaunch(const UPParser *parser, const PromotionMemory &memory, const QString &today,
                              const std::function<quint32()> &draw)
{
    if (!parser)
        return {LaunchOutcome::Nothing, "there is no descriptor"};
    if (parser->foundNewVerion())
        return {LaunchOutcome::NewVersion, "there is a new version"};
    if (!parser->rmtConfig() || !parser->rmtConfig()->adParser())
        return {LaunchOutcome::Nothing, "up to date, and there are no promotions"};
    if (!memory.day.isNull() && memory.day == today)
        return {LaunchOutcome::Nothing, "up to date, and a promotion was shown today already"};
    const std::optional<ADItem> &item = parser->rmtConfig()->adParser()->full();
    if (!item)
        return {LaunchOutcome::Nothing, "up to date, and there is no promotion"};
    // Without a sign: a rate below 0 is a very large one.
    const auto rate = quint32(memory.rate.value_or(item->rate()));
    if (draw() % 100 >= rate)
        return {LaunchOutcome::Nothing, "up to date, and the draw was against the promotion"};
    return {LaunchOutcome::Promotion, "up to date, and a promotion is due"};
}

}  // namespace kestrel
