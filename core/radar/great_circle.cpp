#include "core/radar/great_circle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyvane::GreatCircle {

namespace {

constexpr double earthRadiusNM = 3437.75;
constexpr double degreesPerRadian = 180 / std::numbers::pi;

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

} // namespace

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

/// By the spherical law of cosines.
double distanceNM(const Coordinate& from, const Coordinate& to)
{
    const double latitude1 = radians(from.latitude);
    const double latitude2 = radians(to.latitude);
    const double cosine = std::sin(latitude1) * std::sin(latitude2)
        + std::cos(latitude1) * std::cos(latitude2) * std::cos(radians(to.longitude - from.longitude));
    return std::acos(std::max(std::min(cosine, 1.0), -1.0)) * earthRadiusNM;
}

} // namespace skyvane::GreatCircle
