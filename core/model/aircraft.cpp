#include "core/model/aircraft.h"

#include "core/model/distance_unit.h"
#include "platform/text/format.h"
#include "platform/text/locale.h"
#include "platform/text/unicode.h"

#include <array>
#include <cmath>
#include <numbers>
#include <unordered_set>

namespace skyvane {

namespace {

constexpr double metresPerNauticalMile = 1852;
constexpr double metresPerFoot = 0.3048;
constexpr std::int64_t levelFlightBand
    = 64; // Feet a minute; altitude is reported in steps that jitter below it.

/// Negative directions are north, by the clamp.
std::string compassPoint(double degrees)
{
    constexpr std::array points{
        "N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE", "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};
    const double sector = std::fmod((degrees + 11.25) / 22.5, 16);
    if (!(sector > 0))
        return points.front();
    return points[static_cast<std::size_t>(sector)];
}

const std::unordered_set<std::string>& helicopterTypes()
{
    static const std::unordered_set<std::string> types{"R22", "R44", "R66", "B06", "B407", "B412", "B429",
        "B505", "AS50", "EC30", "EC35", "EC45", "EC55", "EC75", "A109", "A139", "A169", "S76", "S92", "H60",
        "MD50", "UH1", "H64", "H47", "B212", "B222", "B230"};
    return types;
}

} // namespace

std::string Aircraft::displayName() const
{
    if (flight) {
        if (const std::string_view callsign = Unicode::trimmed(*flight); !callsign.empty())
            return std::string{callsign};
    }
    if (registration && !registration->empty())
        return *registration;
    return Unicode::uppercased(hex);
}

std::optional<Coordinate> Aircraft::coordinate() const
{
    if (!lat || !lon)
        return std::nullopt;
    return Coordinate{.latitude = *lat, .longitude = *lon};
}

bool Aircraft::isOnGround() const
{
    return altBaro && altBaro->isGround();
}

std::optional<std::int64_t> Aircraft::altitudeFeet() const
{
    if (altBaro && !altBaro->isGround())
        return altBaro->feet();
    return altGeom;
}

std::string Aircraft::altitudeText() const
{
    if (isOnGround())
        return "On ground";
    const auto feet = altitudeFeet();
    return feet ? groupedInteger(*feet) + " ft" : "—";
}

std::string Aircraft::speedText() const
{
    return groundSpeed ? Format::fixed(std::round(*groundSpeed) + 0.0, 0) + " kt" : "—";
}

std::optional<std::int64_t> Aircraft::verticalRate() const
{
    return baroRate ? baroRate : geomRate;
}

std::optional<std::string> Aircraft::verticalText() const
{
    const auto rate = verticalRate();
    if (!rate || (*rate > -levelFlightBand && *rate < levelFlightBand))
        return std::nullopt;
    return (*rate < 0 ? "↓ " : "↑ ") + groupedMagnitude(*rate) + " ft/min";
}

bool Aircraft::isEmergency() const
{
    if (squawk == "7500" || squawk == "7600" || squawk == "7700")
        return true;
    return emergency && *emergency != "none";
}

bool Aircraft::isMilitary() const
{
    return dbFlags && (*dbFlags & 1) != 0;
}

std::optional<double> Aircraft::distanceMiles() const
{
    if (!distanceNM)
        return std::nullopt;
    return *distanceNM * DistanceUnit::named("mi").perNauticalMile;
}

bool Aircraft::isHelicopter() const
{
    return category == "A7" || (typeCode && helicopterTypes().contains(Unicode::uppercased(*typeCode)));
}

std::optional<std::string> Aircraft::lookDirection() const
{
    if (!directionDeg || !distanceNM)
        return std::nullopt;
    const std::string look = "Look " + compassPoint(*directionDeg);
    const auto feet = altBaro ? altBaro->feet() : altGeom;
    if (!feet || !(*distanceNM > 0))
        return look;
    const double elevation
        = std::atan2(static_cast<double>(*feet) * metresPerFoot, *distanceNM * metresPerNauticalMile);
    return look + ", " + Format::fixed(elevation * 180 / std::numbers::pi, 0) + "° up";
}

std::optional<std::string> Aircraft::distanceText(std::string_view unit, bool compact) const
{
    if (!distanceNM)
        return std::nullopt;
    const auto [word, perNauticalMile] = DistanceUnit::named(unit);
    return Format::fixed(*distanceNM * perNauticalMile, 1) + (compact ? "" : " ") + std::string{word};
}

} // namespace skyvane
