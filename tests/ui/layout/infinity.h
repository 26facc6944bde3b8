#pragma once

#include <limits>

namespace skyvane {

inline constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace skyvane
