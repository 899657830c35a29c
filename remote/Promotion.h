#pragma once

#include <QStringView>

namespace kestrel {

namespace foundation {
class UserDefaults;
}
class ADItem;

inline constexpr QStringView advertisementRefuseKey = u"_AdvertisementRefuse";  ///< how often it was declined
inline constexpr QStringView advertisementRateKey = u"_AdvertisementRate";      ///< per cent; set once it was declined

/// Whether the declines so far leave room for this promotion; one without a limit starts the count of declines afresh.
bool takeUpPromotion(const ADItem &item, foundation::UserDefaults &defaults);

/// Notes a decline: it counts, and from now on the promotion has its later rate.
void declinePromotion(const ADItem &item, foundation::UserDefaults &defaults);

}  // namespace kestrel
