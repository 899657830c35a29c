#pragma once

#include <QString>

#include <array>

namespace kestrel {

/// What the home screen says while the pointer is over a module button, in the order of the buttons: convert, DVD,
/// download, record. English keys for `AppLocalizedString`.
struct HomeHoverText {
    const char *headline;
    const char *description;
};
extern const std::array<HomeHoverText, 4> homeHoverTexts;

/// At rest. The headline is the product's name and is not localised.
inline constexpr QStringView homeRestingHeadline = u"Kestrel Converter 4K";
extern const char *const homeRestingDescription;

}  // namespace kestrel
