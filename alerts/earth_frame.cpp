#include "alerts/earth_frame.h"

#include <cmath>
#include <numbers>

namespace skyvane {

namespace {

constexpr double degreesPerRadian = 180 / std::numbers::pi;

} // namespace

EarthFrame EarthFrame::at(const Coordinate& place)
{
    const double latitude = place.latitude / degreesPerRadian;
    const double longitude = place.longitude / degreesPerRadian;
    const double sinLat = std::sin(latitude);
    const double cosLat = std::cos(latitude);
    const double sinLon = std::sin(longitude);
    const double cosLon = std::cos(longitude);
    return {
        .up = {cosLat * cosLon, cosLat * sinLon, sinLat},
        .north = {-sinLat * cosLon, -sinLat * sinLon, cosLat},
        .east = {-sinLon, cosLon, 0},
    };
}

EarthVector EarthFrame::towards(double bearingDeg) const
{
    const double bearing = bearingDeg / degreesPerRadian;
    return north * std::cos(bearing) + east * std::sin(bearing);
}

double EarthFrame::bearing(const EarthVector& place) const
{
    const double degrees = std::atan2(place.dot(east), place.dot(north)) * degreesPerRadian;
    return degrees < 0 ? degrees + 360 : degrees;
}

double EarthFrame::distance(const EarthVector& place) const
{
    return std::atan2(std::hypot(place.dot(north), place.dot(east)), place.dot(up));
}

} // namespace skyvane
