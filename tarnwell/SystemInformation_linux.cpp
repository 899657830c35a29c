#include "SystemInformation.h"

namespace kestrel::tarnwell {

std::optional<SystemVersion> platformSystemVersion()
{
    return SystemVersion{13, 0, 0};
}

QString GetAppleChipName()
{
    return {};
}

}  // namespace kestrel::tarnwell
