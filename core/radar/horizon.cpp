#include "core/radar/horizon.h"

#include <cmath>
#include <numbers>

namespace skyvane::Horizon {

namespace {

constexpr double degreesPerRadian = 180 / std::numbers::pi;
constexpr double metresPerFoot = 0.3048;

} // namespace

std::optional<double> height(const Aircraft& aircraft)
{
    if (aircraft.isOnGround())
        return std::nullopt;
    const auto feet = aircraft.altGeom ? aircraft.altGeom : aircraft.altitudeFeet();
    return feet ? std::optional{static_cast<double>(*feet)} : std::nullopt;
}

double elevation(double distanceNM, double feet)
{
    const double angle = distanceNM / earthRadiusNM;
    const double fromCentre = earthRadiusNM + feet * metresPerFoot / metresPerNauticalMile;
    const double across = fromCentre * std::sin(angle);
    const double up = fromCentre * std::cos(angle) - earthRadiusNM;
    return std::atan2(up, across) * degreesPerRadian;
}

} // namespace skyvane::Horizon
