#include "core/radar/radar_geometry.h"

#include "core/radar/great_circle.h"

#include <algorithm>

namespace skyvane {

std::optional<RadarGeometry::Polar> RadarGeometry::polar(const Aircraft& aircraft) const
{
    std::optional<double> distance = aircraft.distanceNM;
    std::optional<double> bearing = aircraft.directionDeg;
    if (!distance || !bearing) {
        const auto position = aircraft.coordinate();
        if (!home || !position)
            return std::nullopt;
        const Coordinate center{.latitude = home->latitude, .longitude = home->longitude};
        if (!bearing)
            bearing = GreatCircle::initialBearing(center, *position);
        if (!distance)
            distance = GreatCircle::distanceNM(center, *position);
    }
    if (!(radiusNM > 0))
        return std::nullopt;
    return Polar{.fraction = std::min(*distance / radiusNM, 1.0), .bearingDeg = *bearing};
}

} // namespace skyvane
