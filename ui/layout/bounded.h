#pragma once

#include <algorithm>
#include <cmath>

namespace skyvane {

/// A length from a view tree, kept where sums and products of many stay finite: at most 10,000 points either
/// way.
inline double boundedLength(double points)
{
    constexpr double longest = 10'000;
    return std::isnan(points) ? 0 : std::clamp(points, -longest, longest);
}

} // namespace skyvane
