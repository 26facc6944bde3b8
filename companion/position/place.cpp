#include "companion/position/place.h"

namespace skyvane {

std::string Place::title() const
{
    std::string title = name;
    if (!code.empty())
        title += " (" + code + ")";
    if (!region.empty())
        title += ", " + region;
    return title;
}

} // namespace skyvane
