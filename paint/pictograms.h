#pragma once

#include <QPainterPath>

#include <string_view>

namespace skyvane {

/// The outline of a pictogram, to be filled: in a square of side 1 whose centre is the origin. "airplane"
/// points to the right. Null for an unknown name.
const QPainterPath* pictogramOutline(std::string_view name);

} // namespace skyvane
