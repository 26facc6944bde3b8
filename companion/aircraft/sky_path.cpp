#include "companion/aircraft/sky_path.h"

#include "alerts/flight_ahead.h"
#include "alerts/straight_flight.h"

namespace skyvane {

std::vector<SkyPathPoint> skyPath(const Aircraft& aircraft, const HomeLocation& home)
{
    constexpr std::chrono::seconds step{15};
    constexpr std::chrono::minutes longest{10};
    const auto flight = FlightAhead::of(aircraft, {.latitude = home.latitude, .longitude = home.longitude});
    if (!flight || !fliesStraight(aircraft, /*turnRate=*/std::nullopt))
        return {};
    std::vector<SkyPathPoint> path;
    for (std::chrono::seconds time{0}; time <= longest; time += step) {
        const auto there = flight->after(time);
        if (!there || !(there->elevationDeg >= 0))
            break;
        path.push_back(
            {.in = time, .where = {.bearingDeg = there->bearingDeg, .elevationDeg = there->elevationDeg}});
    }
    return path;
}

} // namespace skyvane
