#pragma once

#include "ui/layout/geometry.h"
#include "ui/tree/widget_family.h"

#include <vector>

namespace skyvane {

/// Of these families the largest that fits into the size, in points, else the smallest. There has to be one.
WidgetFamily familyFor(const Size& size, const std::vector<WidgetFamily>& families);

} // namespace skyvane
