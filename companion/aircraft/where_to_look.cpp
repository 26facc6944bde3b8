#include "companion/aircraft/where_to_look.h"

#include "core/radar/radar_geometry.h"
#include "platform/text/localized.h"

#include <cmath>
#include <cstdint>
#include <numbers>

namespace skyvane {

namespace {

constexpr double degreesPerRadian = 180 / std::numbers::pi;
constexpr double metresPerFoot = 0.3048;
constexpr double metresPerNauticalMile = 1852;
constexpr double earthRadius = 6'371'000; // Metres.

std::optional<double> heightInMetres(const Aircraft& aircraft)
{
    if (aircraft.isOnGround())
        return std::nullopt;
    const auto feet = aircraft.altGeom ? aircraft.altGeom : aircraft.altitudeFeet();
    return feet ? std::optional{static_cast<double>(*feet) * metresPerFoot} : std::nullopt;
}

double elevation(double distance, double height)
{
    const double angle = distance / earthRadius;
    const double across = (earthRadius + height) * std::sin(angle);
    const double up = (earthRadius + height) * std::cos(angle) - earthRadius;
    return std::atan2(up, across) * degreesPerRadian;
}

/// "north", "north-east"
std::string direction(double bearing)
{
    switch (std::lround(bearing / 45) & 7) {
    case 0:
        return localized("north");
    case 1:
        return localized("north-east");
    case 2:
        return localized("east");
    case 3:
        return localized("south-east");
    case 4:
        return localized("south");
    case 5:
        return localized("south-west");
    case 6:
        return localized("west");
    default:
        return localized("north-west");
    }
}

} // namespace

std::optional<WhereToLook> whereToLook(const Aircraft& aircraft, const std::optional<HomeLocation>& home)
{
    constexpr double farthest = 10'801; // Nautical miles: nothing on Earth is pinned to the rim.
    const RadarGeometry geometry{.radiusNM = farthest, .home = home};
    const auto polar = geometry.polar(aircraft);
    if (!polar)
        return std::nullopt;
    WhereToLook where{.bearingDeg = polar->bearingDeg};
    if (const auto height = heightInMetres(aircraft))
        where.elevationDeg = elevation(polar->fraction * farthest * metresPerNauticalMile, *height);
    return where;
}

std::string lookText(const WhereToLook& where)
{
    const std::string to = direction(where.bearingDeg);
    if (!where.elevationDeg)
        return localized("Look %1.", {to});
    const std::int64_t degrees = std::llround(*where.elevationDeg);
    if (degrees >= 80)
        return localized("Look straight up.");
    if (*where.elevationDeg < 0)
        return localized("It is in the %1, below the horizon.", {to});
    if (degrees == 0)
        return localized("Look %1, right at the horizon.", {to});
    return localized("Look %1, about %2° above the horizon.", {to, degrees});
}

} // namespace skyvane
