#include "hosts/plasma/family_choice.h"

#include "ui/layout/widget_container.h"

#include <algorithm>

namespace skyvane {

namespace {

double areaOf(WidgetFamily family)
{
    const Size size = WidgetContainer::size(family);
    return size.width * size.height;
}

/// A shell's grid may take a point or two.
bool fits(WidgetFamily family, const Size& space)
{
    constexpr double slack = 2;
    const Size size = WidgetContainer::size(family);
    return size.width <= space.width + slack && size.height <= space.height + slack;
}

} // namespace

WidgetFamily familyFor(const Size& size, const std::vector<WidgetFamily>& families)
{
    WidgetFamily choice = *std::ranges::min_element(families, {}, areaOf);
    for (const WidgetFamily family : families) {
        if (fits(family, size) && areaOf(family) > areaOf(choice))
            choice = family;
    }
    return choice;
}

} // namespace skyvane
