#include "tests/alerts/flight_model.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyvane::test {

namespace {

constexpr double radian = std::numbers::pi / 180;
constexpr double metresPerFoot = 0.3048;
constexpr double metresPerNM = 1852;
constexpr double step = 1.0 / statesPerSecond; // Seconds.
constexpr double equator = 6'378'137; // Metres.
constexpr double eccentricity2 = 6.69437999014e-3;

/// Radii of curvature of the ellipsoid, metres.
double acrossRadius(double latitude)
{
    return equator / std::sqrt(1 - eccentricity2 * std::pow(std::sin(latitude * radian), 2));
}
double alongRadius(double latitude)
{
    return acrossRadius(latitude) * (1 - eccentricity2)
        / (1 - eccentricity2 * std::pow(std::sin(latitude * radian), 2));
}

struct Point {
    double x;
    double y;
    double z;
};

Point earthCentred(const Coordinate& place, double metres)
{
    const double latitude = place.latitude * radian;
    const double longitude = place.longitude * radian;
    const double radius = acrossRadius(place.latitude);
    return {
        .x = (radius + metres) * std::cos(latitude) * std::cos(longitude),
        .y = (radius + metres) * std::cos(latitude) * std::sin(longitude),
        .z = (radius * (1 - eccentricity2) + metres) * std::sin(latitude),
    };
}

double rounded(double value, double unit)
{
    return std::round(value / unit) * unit;
}

/// Straight on is a great circle, along which the track turns with the meridians.
void advance(FlightState& state)
{
    const double metres = state.motion.speed * metresPerNM / 3600 * step;
    const double height = state.feet * metresPerFoot;
    const double north = metres * std::cos(state.track * radian);
    const double east = metres * std::sin(state.track * radian);
    const double longitude
        = east / ((acrossRadius(state.place.latitude) + height) * std::cos(state.place.latitude * radian));
    state.place.longitude += longitude / radian;
    state.track += longitude / radian * std::sin(state.place.latitude * radian) + state.motion.turn * step;
    state.place.latitude += north / (alongRadius(state.place.latitude) + height) / radian;
    state.feet = std::max(state.feet + state.motion.climb / 60 * step, 0.0);
    state.seconds += step;
}

} // namespace

std::vector<FlightState> flown(const FlightPlan& plan, double seconds)
{
    std::vector<FlightState> states;
    FlightState state{0, plan.start, plan.track, plan.feet, plan.motion(0)};
    while (state.seconds < seconds) {
        state.motion = plan.motion(state.seconds);
        states.push_back(state);
        advance(state);
    }
    return states;
}

Aircraft reported(const FlightState& state)
{
    constexpr double age = 2;
    FlightState before = state;
    before.motion.speed = -state.motion.speed;
    before.motion.turn = -state.motion.turn;
    for (double back = 0; back < age; back += step)
        advance(before);
    const auto whole = [](double value, double unit) {
        return static_cast<std::int64_t>(std::llround(rounded(value, unit)));
    };
    return {
        .hex = "4ca853",
        .flight = "FLT123",
        .altGeom = whole(state.feet, 25),
        .groundSpeed = rounded(state.motion.speed, 0.1),
        .track = rounded(std::fmod(state.track + 360, 360), 0.01),
        .geomRate = whole(state.motion.climb, 32),
        .lat = rounded(before.place.latitude, 1e-6),
        .lon = rounded(before.place.longitude, 1e-6),
        .seenPos = age,
    };
}

Sight seen(const FlightState& state, const Coordinate& from)
{
    const Point eyes = earthCentred(from, 0);
    const Point there = earthCentred(state.place, state.feet * metresPerFoot);
    const Point way{there.x - eyes.x, there.y - eyes.y, there.z - eyes.z};
    const double latitude = from.latitude * radian;
    const double longitude = from.longitude * radian;
    const double east = -std::sin(longitude) * way.x + std::cos(longitude) * way.y;
    const double outward = std::cos(longitude) * way.x + std::sin(longitude) * way.y;
    const double north = -std::sin(latitude) * outward + std::cos(latitude) * way.z;
    const double up = std::cos(latitude) * outward + std::sin(latitude) * way.z;
    return {
        .elevationDeg = std::atan2(up, std::hypot(east, north)) / radian,
        .bearingDeg = std::fmod(std::atan2(east, north) / radian + 360, 360),
    };
}

const FlightState& at(const std::vector<FlightState>& flight, double seconds)
{
    return flight.at(static_cast<std::size_t>(std::llround(seconds * statesPerSecond)));
}

const FlightState& highest(const std::vector<FlightState>& flight, const Coordinate& from)
{
    return *std::ranges::max_element(
        flight, {}, [&](const FlightState& state) { return seen(state, from).elevationDeg; });
}

Coordinate displaced(const Coordinate& from, double bearingDeg, double distanceNM)
{
    const double metres = distanceNM * metresPerNM;
    const double north = metres * std::cos(bearingDeg * radian) / alongRadius(from.latitude);
    const double east = metres * std::sin(bearingDeg * radian)
        / (acrossRadius(from.latitude) * std::cos(from.latitude * radian));
    return {.latitude = from.latitude + north / radian, .longitude = from.longitude + east / radian};
}

} // namespace skyvane::test
