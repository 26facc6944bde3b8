#pragma once

#include "core/model/aircraft.h"

#include <functional>
#include <string>
#include <vector>

namespace skyvane::test {

/// What an aircraft does at a moment of its flight.
struct Motion {
    double speed; ///< Knots over ground.
    double turn = 0; ///< Degrees a second clockwise.
    double climb = 0; ///< Feet a minute.
};

/// How and where a flight begins, and what it does from then on.
struct FlightPlan {
    Coordinate start;
    double track; ///< Degrees.
    double feet; ///< Above the ellipsoid.
    std::function<Motion(double seconds)> motion;
};

/// Where a flight is.
struct FlightState {
    double seconds; ///< Since its start.
    Coordinate place;
    double track;
    double feet;
    Motion motion;
};

inline constexpr int statesPerSecond = 4;

/// A flight in short steps over the ellipsoid of WGS-84, which the predictions know nothing
/// of.
std::vector<FlightState> flown(const FlightPlan& plan, double seconds);

/// What a feed sends of it, so precise as feeds are, its position two seconds old.
Aircraft reported(const FlightState& state);

/// How the flight is seen from a place at sea level on the ellipsoid.
struct Sight {
    double elevationDeg;
    double bearingDeg;
};
Sight seen(const FlightState& state, const Coordinate& from);

/// The first state from this second on.
const FlightState& at(const std::vector<FlightState>& flight, double seconds);

/// The state in which the flight stands highest over the horizon there.
const FlightState& highest(const std::vector<FlightState>& flight, const Coordinate& from);

/// The place so far from another in this direction, near enough for a plan.
Coordinate displaced(const Coordinate& from, double bearingDeg, double distanceNM);

} // namespace skyvane::test
