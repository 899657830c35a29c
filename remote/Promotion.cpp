#include "Promotion.h"

#include "ADItem.h"
#include "foundation/UserDefaults.h"

#include <limits>

namespace kestrel {

bool takeUpPromotion(const ADItem &item, foundation::UserDefaults &defaults)
{
    const QString key = advertisementRefuseKey.toString();
    if (item.maxCount() <= 0) {
        defaults.setObject(0, key);
        return true;
    }
    return defaults.integerForKey(key) <= item.maxCount();
}

void declinePromotion(const ADItem &item, foundation::UserDefaults &defaults)
{
    const QString key = advertisementRefuseKey.toString();
    const qint64 declines = defaults.integerForKey(key);
    defaults.setObject(item.nextRate(), advertisementRateKey.toString());
    defaults.setObject(declines < std::numeric_limits<qint64>::max() ? declines + 1 : declines, key);
}

}  // namespace kestrel
