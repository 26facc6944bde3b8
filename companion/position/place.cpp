#include "companion/position/place.h"

namespace skyvane {

std::string Place::title() const
{
    std::string title = name;
    if (!shortCode.empty() && !code.empty())
        title += " (" + shortCode + ", " + code + ")";
    else if (isAirport())
        title += " (" + shortCode + code + ")";
    if (!region.empty())
        title += ", " + region;
    return title;
}

} // namespace skyvane
