#pragma once

#include <algorithm>
#include <cmath>

/// How far around home aircraft are searched for, nautical miles.
namespace skyvane::SearchRadius {

inline constexpr double smallest = 1;
inline constexpr double largest = 250;
inline constexpr double standard = 25; ///< Where nothing is chosen.

constexpr double bounded(double radiusNM)
{
    return std::clamp(radiusNM, smallest, largest);
}

/// What the feed is asked for: a whole number within the bounds. A radius that is not a number asks for the
/// most, like every one that is not below it.
inline int asked(double radiusNM)
{
    const double rounded = std::round(radiusNM);
    return static_cast<int>(rounded < largest ? std::max(rounded, smallest) : largest);
}

} // namespace skyvane::SearchRadius
