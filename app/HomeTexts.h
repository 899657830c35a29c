#pragma once

#include <QStringView>

namespace kestrel {

/// The home screen's headline while the pointer is over no module button: the product's name, which is not localised.
inline constexpr QStringView homeRestingHeadline = u"Kestrel Converter 4K";

}  // namespace kestrel
