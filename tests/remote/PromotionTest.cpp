#include "remote/Promotion.h"

#include "foundation/UserDefaults.h"
#include "remote/ADItem.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(Promotion, IsShownUntilTheDeclinesGoBeyondTheLimit)
{
    const QTemporaryDir folder;
    const QString key = advertisementRefuseKey.toString();
    const struct {
        const char *name;
        qint64 limit;
        QVariant declines;
        bool isShown;
        qint64 declinesAfter;
    } table[] = {
        {"never declined", 1, {}, true, 0},   {"at the limit", 1, 1, true, 1},
        {"beyond the limit", 1, 2, false, 2}, {"no limit", 0, 9, true, 0},
        {"negative limit", -1, 9, true, 0},   {"stored as nonsense", 1, u"many"_s, true, 0},
    };
    for (const auto &row : table) {
        foundation::UserDefaults defaults(folder.filePath(u"defaults.plist"_s));
        defaults.setObject(row.declines, key);
        const ADItem item = ADItem::initWithDictionary({{u"max_count"_s, row.limit}});
        EXPECT_EQ(takeUpPromotion(item, defaults), row.isShown) << row.name;
        EXPECT_EQ(defaults.integerForKey(key), row.declinesAfter) << row.name;
    }
}

TEST(Promotion, CountsDeclinesAndTakesOnTheLaterRate)
{
    const QTemporaryDir folder;
    foundation::UserDefaults defaults(folder.filePath(u"defaults.plist"_s));
    const ADItem item = ADItem::initWithDictionary({{u"rate"_s, 80}, {u"next_rate"_s, 25}, {u"max_count"_s, 1}});
    int shown = 0;
    for (; shown < 10 && takeUpPromotion(item, defaults); ++shown)
        declinePromotion(item, defaults);
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(defaults.objectForKey(advertisementRefuseKey.toString()), QVariant(2LL));
    EXPECT_EQ(defaults.objectForKey(advertisementRateKey.toString()), QVariant(25LL));
    defaults.setObject(std::numeric_limits<qint64>::max(), advertisementRefuseKey.toString());
    declinePromotion(item, defaults);
    EXPECT_EQ(defaults.integerForKey(advertisementRefuseKey.toString()), std::numeric_limits<qint64>::max());
}

}  // namespace kestrel
