#pragma once

#include <QPainterPath>

#include <string_view>

namespace skyvane {

/// The outline of a pictogram in the unit square about the origin, filled; null for a name that there is none
/// for. "airplane" points to the right.
const QPainterPath* pictogramOutline(std::string_view name);

} // namespace skyvane
