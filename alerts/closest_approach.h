#pragma once

#include "alerts/flight_ahead.h"
#include "core/model/aircraft.h"

#include <optional>

namespace skyvane {

/// The moment at which an aircraft that flies on as it does is nearest to home, and where it stands then.
/// Absent where no such flight is known, and for one that will have landed by then.
std::optional<SkyPosition> closestApproach(const Aircraft& aircraft, const Coordinate& home);

} // namespace skyvane
