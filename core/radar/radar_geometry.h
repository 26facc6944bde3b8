#pragma once

#include "core/model/aircraft.h"
#include "core/model/home_location.h"

#include <optional>

namespace skyvane {

/// Places aircraft on a circular scope.
struct RadarGeometry {
    double radiusNM; ///< Range of the outer ring, nautical miles.
    std::optional<HomeLocation> home{}; ///< The scope's centre.

    struct Polar {
        double fraction; ///< Of the scope's radius, at most 1: what lies beyond is pinned to the outer ring.
        double bearingDeg; ///< Clockwise from true north.

        bool operator==(const Polar&) const = default;
    };

    /// The feed's own distance and direction; what it lacks is computed from both positions. Absent when that
    /// is impossible or the radius is not above 0.
    std::optional<Polar> polar(const Aircraft& aircraft) const;

    bool operator==(const RadarGeometry&) const = default;
};

} // namespace skyvane
