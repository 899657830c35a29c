#include "SettingPage.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

double scrollPosition(double y, double margin, double visibleHeight)
{
    return std::max(0.0, y + margin - visibleHeight);
}

std::optional<SettingSection> sectionInView(std::span<const double, 3> headingMiddles, double top)
{
    constexpr double reach = 100;
    const auto found = std::find_if(headingMiddles.begin(), headingMiddles.end(),
                                    [top](double middle) { return middle > top - reach && middle < top; });
    if (found == headingMiddles.end())
        return std::nullopt;
    return SettingSection(int(SettingSection::Common) + int(found - headingMiddles.begin()));
}

bool markMoves(double origin, double target)
{
    return std::abs(target - origin) >= 2;
}

QString folderProperty(int folderTag)
{
    switch (folderTag) {
        case 1:
            return u"videoOutputPath"_s;
        case 2:
            return u"musicOutputPath"_s;
        case 3:
            return u"snapshotOutputPath"_s;
    }
    return {};
}

bool encodesInHardware(HardwareChoice choice, bool machineCan)
{
    return choice == HardwareChoice::Automatic ? machineCan : choice == HardwareChoice::Intel;
}

HardwareChoice hardwareChoiceShown(HardwareChoice last, bool machineCan, bool isSwitchedOn)
{
    if (encodesInHardware(last, machineCan) == isSwitchedOn)
        return last;
    return isSwitchedOn ? HardwareChoice::Intel : HardwareChoice::Off;
}

}  // namespace kestrel
