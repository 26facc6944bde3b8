#include "alerts/closest_approach.h"

#include "core/radar/horizon.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyvane {

namespace {

constexpr double degreesPerRadian = 180 / std::numbers::pi;
constexpr double highestClimb = 45'000; ///< Feet; whoever climbs levels off by then,
constexpr double lowestDescent = 3'000; ///< and whoever sinks, before the final approach.

/// In an Earth of radius 1: x through the equator at Greenwich, z through the pole.
struct Vector {
    double x;
    double y;
    double z;

    Vector operator*(double factor) const { return {x * factor, y * factor, z * factor}; }
    Vector operator+(const Vector& other) const { return {x + other.x, y + other.y, z + other.z}; }
};

double dot(const Vector& one, const Vector& other)
{
    return one.x * other.x + one.y * other.y + one.z * other.z;
}

/// A place, and which way north and east are there.
struct Frame {
    Vector up;
    Vector north;
    Vector east;

    static Frame at(const Coordinate& place)
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

    Vector towards(double bearingDeg) const
    {
        const double bearing = bearingDeg / degreesPerRadian;
        return north * std::cos(bearing) + east * std::sin(bearing);
    }

    double bearing(const Vector& place) const
    {
        const double degrees = std::atan2(dot(place, east), dot(place, north)) * degreesPerRadian;
        return degrees < 0 ? degrees + 360 : degrees;
    }

    /// The angle at Earth's centre.
    double distance(const Vector& place) const
    {
        return std::atan2(std::hypot(dot(place, north), dot(place, east)), dot(place, up));
    }
};

double heightAfter(double feet, double feetPerMinute, std::chrono::duration<double> time)
{
    const double then = feet + feetPerMinute * time.count() / 60;
    if (feetPerMinute > 0)
        return std::min(then, std::max(feet, highestClimb));
    return feet > lowestDescent ? std::max(then, lowestDescent) : then;
}

} // namespace

std::optional<ClosestApproach> closestApproach(const Aircraft& aircraft, const Coordinate& home)
{
    const auto position = aircraft.coordinate();
    const auto height = Horizon::height(aircraft);
    if (!position || !height || !aircraft.track || !aircraft.groundSpeed || !(*aircraft.groundSpeed > 0))
        return std::nullopt;
    const Frame start = Frame::at(*position);
    const Frame eyes = Frame::at(home);
    const Vector course = start.towards(*aircraft.track);
    // Along the circle the place is start · cos + course · sin; eyes · place is largest, and so the way to it
    // shortest, here.
    const double along = std::atan2(dot(eyes.up, course), dot(eyes.up, start.up));
    const Vector nearest = start.up * std::cos(along) + course * std::sin(along);
    const double distanceNM = eyes.distance(nearest) * Horizon::earthRadiusNM;
    const std::chrono::duration<double, std::ratio<3600>> flight{
        along * Horizon::earthRadiusNM / *aircraft.groundSpeed};
    const double climb = static_cast<double>(aircraft.verticalRate().value_or(0));
    const double feet = heightAfter(*height, climb, flight);
    const ClosestApproach found{
        .in = flight - std::chrono::duration<double>{aircraft.seenPos.value_or(0)},
        .distanceNM = distanceNM,
        .bearingDeg = eyes.bearing(nearest),
        .elevationDeg = Horizon::elevation(distanceNM, feet),
    };
    const bool isKnown = std::isfinite(found.in.count()) && std::isfinite(found.elevationDeg);
    return isKnown && feet > 0 ? std::optional{found} : std::nullopt;
}

} // namespace skyvane
