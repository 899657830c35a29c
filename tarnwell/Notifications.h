#pragma once

#include <QStringView>

namespace kestrel::tarnwell {

/// Posted on the main thread once a launch, after the automatic update check has fetched. The object is the `UPParser`,
/// null where the fetch failed.
inline constexpr QStringView RMTConfigureDidParse = u"RMTConfigureDidParse";

}  // namespace kestrel::tarnwell
