#include "host/desktop/first_widgets.h"

#include <algorithm>

namespace skyvane {

const std::array<WidgetTarget, 3>& firstWidgets()
{
    static const std::array<WidgetTarget, 3> targets{{
        {.kind = "org.skyvane.widgets.nearest", .family = WidgetFamily::small},
        {.kind = "org.skyvane.widgets.radar", .family = WidgetFamily::medium},
        {.kind = "org.skyvane.widgets.skyboard", .family = WidgetFamily::large},
    }};
    return targets;
}

WidgetFamily firstFamily(std::string_view kind)
{
    const auto& first = firstWidgets();
    const auto found = std::ranges::find(first, kind, &WidgetTarget::kind);
    return found == first.end() ? WidgetFamily::large : found->family;
}

} // namespace skyvane
