#include "alerts/straight_flight.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace skyvane {

namespace {

constexpr double slowestFlight = 70; ///< Knots over ground.
constexpr double oldestPosition = 30; ///< Seconds.
constexpr double steadiestTurn
    = 0.25; ///< Degrees a second. A holding aircraft has 3, a straight one rarely 0.1.

/// Emitter categories: glider, lighter than air, parachutist, ultralight, unmanned, space vehicle.
bool circlesByTrade(const Aircraft& aircraft)
{
    constexpr std::array categories{"B1", "B2", "B3", "B4", "B6", "B7"};
    return aircraft.isHelicopter()
        || std::find(categories.begin(), categories.end(), aircraft.category) != categories.end();
}

} // namespace

bool fliesStraight(const Aircraft& aircraft, std::optional<double> turnRate)
{
    if (aircraft.isOnGround() || !(aircraft.groundSpeed.value_or(0) >= slowestFlight))
        return false;
    if (!(aircraft.seenPos.value_or(0) < oldestPosition))
        return false;
    return turnRate ? std::abs(*turnRate) < steadiestTurn : !circlesByTrade(aircraft);
}

} // namespace skyvane
