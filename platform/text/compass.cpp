#include "platform/text/compass.h"

#include "platform/text/localized.h"

#include <cmath>

namespace skyvane {

std::string compassDirection(double bearingDeg)
{
    switch (std::lround(bearingDeg / 45) & 7) {
    case 0:
        return localized("north");
    case 1:
        return localized("north-east");
    case 2:
        return localized("east");
    case 3:
        return localized("south-east");
    case 4:
        return localized("south");
    case 5:
        return localized("south-west");
    case 6:
        return localized("west");
    default:
        return localized("north-west");
    }
}

} // namespace skyvane
