#pragma once

#include "core/model/aircraft.h"

#include <chrono>
#include <optional>

namespace skyvane {

/// The moment at which an aircraft is nearest to home, and where it stands then, seen from there.
struct ClosestApproach {
    std::chrono::duration<double> in; ///< From now, negative when it was before.
    double distanceNM; ///< Along the ground.
    double bearingDeg; ///< Clockwise from true north, 0 to 360.
    double elevationDeg; ///< Over the horizon.

    bool operator==(const ClosestApproach&) const = default;
};

/// Of an aircraft that flies on as it does: along the great circle of its track, at its ground speed,
/// climbing or sinking at its rate as far as aircraft do. The point of that circle that is nearest to home is
/// found by vectors, as K. Gade does in "A Non-singular Horizontal Position Representation", Journal of
/// Navigation 63 (2010). Absent without a position, a track, a speed or a height, and for one that will have
/// landed by then.
std::optional<ClosestApproach> closestApproach(const Aircraft& aircraft, const Coordinate& home);

} // namespace skyvane
