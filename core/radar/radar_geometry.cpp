#include "core/radar/radar_geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyvane {

namespace {

constexpr double earthRadiusNM = 3437.75;
constexpr double degreesPerRadian = 180 / std::numbers::pi;

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

/// 0 to 360, clockwise from true north.
double initialBearing(const Coordinate& from, const Coordinate& to)
{
    const double latitude1 = radians(from.latitude);
    const double latitude2 = radians(to.latitude);
    const double deltaLongitude = radians(to.longitude - from.longitude);
    const double east = std::sin(deltaLongitude) * std::cos(latitude2);
    const double north = std::cos(latitude1) * std::sin(latitude2)
        - std::sin(latitude1) * std::cos(latitude2) * std::cos(deltaLongitude);
    return std::fmod(std::atan2(east, north) * degreesPerRadian + 360, 360);
}

/// Nautical miles along the great circle, by the spherical law of cosines.
double greatCircleDistance(const Coordinate& from, const Coordinate& to)
{
    const double latitude1 = radians(from.latitude);
    const double latitude2 = radians(to.latitude);
    const double cosine = std::sin(latitude1) * std::sin(latitude2)
        + std::cos(latitude1) * std::cos(latitude2) * std::cos(radians(to.longitude - from.longitude));
    return std::acos(std::max(std::min(cosine, 1.0), -1.0)) * earthRadiusNM;
}

} // namespace

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
            bearing = initialBearing(center, *position);
        if (!distance)
            distance = greatCircleDistance(center, *position);
    }
    if (!(radiusNM > 0))
        return std::nullopt;
    return Polar{.fraction = std::min(*distance / radiusNM, 1.0), .bearingDeg = *bearing};
}

} // namespace skyvane
