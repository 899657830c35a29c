#include "update/LaunchDecision.h"

#include "update/UPParser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

std::unique_ptr<const UPParser> descriptor(const QString &version, const QByteArray &configuration)
{
    auto parser = std::make_unique<UPParser>(UpdateReading{u"en"_s, u"1.0"_s});
    parser->parseUpgradeConfig({{u"LastestVersion"_s, version}, {u"ADConfigURL"_s, u"http://x"_s}},
                               [&](const QString &) { return AppRMConfig::initWithData(configuration); });
    return parser;
}

}  // namespace

TEST(LaunchDecision, ShowsAtMostOneWindow)
{
    const QString today = u"2024-02-29"_s;
    const PromotionMemory none;
    const PromotionMemory yesterday{u"2024-02-28"_s, {}};
    const PromotionMemory shownToday{today, 100};
    const QByteArray withRate37 = R"({"ads": {"full": {"rate": 37}}})";
    const auto remembered = [](qint64 rate) { return PromotionMemory{{}, rate}; };
    constexpr auto nothing = LaunchOutcome::Nothing;
    constexpr auto promotion = LaunchOutcome::Promotion;
    const struct {
        const char *name;
        QString version;
        QByteArray configuration;
        PromotionMemory memory;
        std::optional<quint32> draw;  ///< nothing where none may be made
        LaunchOutcome expected;
    } table[] = {
        {"a new version before any promotion", u"1.0.0"_s, withRate37, remembered(100), {}, LaunchOutcome::NewVersion},
        {"no promotions", u"1.0"_s, "{}", none, {}, nothing},
        {"no item", u"1.0"_s, R"({"ads": {}})", none, {}, nothing},
        {"shown today", u"1.0"_s, withRate37, shownToday, {}, nothing},
        {"shown on a later day", u"1.0"_s, withRate37, {u"2024-03-01"_s, {}}, 0, promotion},
        {"below the rate", u"1.0"_s, withRate37, yesterday, 4'294'967'236, promotion},
        {"at the rate", u"1.0"_s, withRate37, none, 137, nothing},
        {"the remembered rate instead", u"1.0"_s, withRate37, remembered(38), 37, promotion},
        {"rate 0", u"1.0"_s, withRate37, remembered(0), 0, nothing},
        {"rate 100", u"1.0"_s, withRate37, remembered(100), 99, promotion},
        {"a rate below 0 is a large one", u"1.0"_s, withRate37, remembered(-1), 99, promotion},
        {"a rate of 33 bits has its lower 32", u"1.0"_s, withRate37, remembered(1LL << 32), 0, nothing},
    };
    for (const auto &row : table) {
        const auto parser = descriptor(row.version, row.configuration);
        int draws = 0;
        const LaunchDecision decision = decideAtLaunch(parser.get(), row.memory, today, [&] {
            ++draws;
            return row.draw.value_or(0);
        });
        EXPECT_EQ(decision.outcome, row.expected) << row.name << ": " << decision.reason;
        EXPECT_EQ(draws, row.draw ? 1 : 0) << row.name;
    }
    EXPECT_EQ(decideAtLaunch(nullptr, none, today, {}).outcome, nothing);
}

}  // namespace kestrel
