#pragma once

#include "core/model/aircraft.h"

#include <optional>

namespace skyvane {

/// Whether an aircraft can be expected to fly straight on for some minutes: it is in the air and faster than
/// what taxis or hovers, its position is fresh, and it does not turn. `turnRate`, in degrees a second, is
/// what the feed says of that; where it says nothing, those that circle by trade (helicopters, gliders,
/// balloons, parachutists, ultralights, drones) are taken to.
bool fliesStraight(const Aircraft& aircraft, std::optional<double> turnRate);

} // namespace skyvane
