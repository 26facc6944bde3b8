#pragma once

#include "protocol/widget_target.h"

#include <array>
#include <string_view>

namespace skyvane {

/// What a new user's desktop begins with.
const std::array<WidgetTarget, 3>& firstWidgets();

/// The family that a widget of this kind has there, else the large one.
WidgetFamily firstFamily(std::string_view kind);

} // namespace skyvane
