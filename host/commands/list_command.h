#pragma once

#include "protocol/widget_info.h"

#include <string>
#include <vector>

namespace skyvane {

/// One line a widget: kind, name and families, separated by tabs.
std::string listText(const std::vector<WidgetInfo>& widgets);

} // namespace skyvane
