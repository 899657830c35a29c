#pragma once

#include <QString>

#include <optional>
#include <span>

/// Where things stand on the settings page and which setting they stand for. Vertical places are points from the page's
/// lower edge.
namespace kestrel {

enum class SettingSection { Common = 1, Video, DVD, Download };

inline constexpr double headingMargin = 10;  ///< above a heading that was scrolled to
inline constexpr double entryMargin = 20;    ///< above a row that was searched for

/// The scroll position (of the visible area's lower edge) at which `y` stands `margin` points below the upper edge of
/// the visible area; the page's end where there is too little below it.
double scrollPosition(double y, double margin, double visibleHeight);

/// The section that comes into view while the user scrolls: the first whose heading's middle lies within the upper 100
/// points of the visible area, `top` being its upper edge. `headingMiddles` are those of the common, video and DVD
/// section; the download section is never found this way.
std::optional<SettingSection> sectionInView(std::span<const double, 3> headingMiddles, double top);

/// Whether the mark moves: not for less than 2 points.
bool markMoves(double origin, double target);

/// The property of a module's settings that holds the folder of a tag (1 video, 2 music, 3 snapshot); null for any
/// other tag.
QString folderProperty(int folderTag);

/// The three choices over the hardware encoder's switch, with their values in the form.
enum class HardwareChoice { Automatic, Intel, Off };
bool encodesInHardware(HardwareChoice choice, bool machineCan);
/// The choice to show: the last one as long as the switch agrees with it, which others may flip.
HardwareChoice hardwareChoiceShown(HardwareChoice last, bool machineCan, bool isSwitchedOn);

}  // namespace kestrel
