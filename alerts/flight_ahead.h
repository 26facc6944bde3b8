#pragma once

#include "alerts/earth_frame.h"
#include "core/model/aircraft.h"

#include <chrono>
#include <optional>

namespace skyvane {

/// Where an aircraft stands at a moment, seen from home.
struct SkyPosition {
    std::chrono::duration<double> in; ///< From now, negative when it was before.
    double distanceNM; ///< Along the ground.
    double bearingDeg; ///< Clockwise from true north, 0 to 360.
    double elevationDeg; ///< Over the horizon.

    bool operator==(const SkyPosition&) const = default;
};

/// Dead reckoning of an aircraft that flies on as it does: along the great circle of its track, at its ground
/// speed, climbing or sinking at its rate as far as aircraft do. Seen from home.
class FlightAhead {
public:
    /// Absent without a position, a track, a speed or a height.
    static std::optional<FlightAhead> of(const Aircraft& aircraft, const Coordinate& home);

    /// When it is nearest to home, counted from its position; negative when it was before. The point of its
    /// circle that is nearest is found by vectors, as K. Gade does in "A Non-singular Horizontal Position
    /// Representation", Journal of Navigation 63 (2010).
    std::chrono::duration<double> timeOfClosestApproach() const;

    /// After so long a flight from its position. Absent for one that will have landed by then.
    std::optional<SkyPosition> after(std::chrono::duration<double> flight) const;

private:
    using Hours = std::chrono::duration<double, std::ratio<3600>>;

    FlightAhead(const EarthFrame& eyes, const EarthVector& start, const EarthVector& course)
        : m_eyes(eyes), m_start(start), m_course(course)
    {
    }

    EarthFrame m_eyes; ///< Home's.
    EarthVector m_start; ///< The aircraft's place,
    EarthVector m_course; ///< and its direction there.
    double m_knots = 0;
    double m_feet = 0;
    double m_feetPerMinute = 0;
    std::chrono::duration<double> m_age{}; ///< Of its position.
};

} // namespace skyvane
