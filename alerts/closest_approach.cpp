#include "alerts/closest_approach.h"

namespace skyvane {

std::optional<SkyPosition> closestApproach(const Aircraft& aircraft, const Coordinate& home)
{
    const auto flight = FlightAhead::of(aircraft, home);
    return flight ? flight->after(flight->timeOfClosestApproach()) : std::nullopt;
}

} // namespace skyvane
