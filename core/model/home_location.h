#pragma once

#include <string>

namespace skyvane {

/// The user's observing position: the centre of every query and of the scope.
struct HomeLocation {
    double latitude; ///< Degrees north, WGS-84. Not range-checked.
    double longitude; ///< Degrees east, WGS-84. Not range-checked.
    std::string label; ///< The user's name for the place.

    bool operator==(const HomeLocation&) const = default;
};

} // namespace skyvane
