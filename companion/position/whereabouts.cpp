#include "companion/position/whereabouts.h"

#include "companion/look/range_text.h"
#include "core/model/distance_unit.h"
#include "desk/text.h"
#include "platform/text/locale.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double metresPerNauticalMile = 1852;

/// In whole units, as one says it.
std::string roughDistance(double distanceNM, std::string_view unit)
{
    const double perNauticalMile = DistanceUnit::named(unit).perNauticalMile;
    return rangeText(std::max(std::round(distanceNM * perNauticalMile), 1.0) / perNauticalMile, unit);
}

} // namespace

QString whereabouts(const NearbyPlace& nearby, std::string_view unit)
{
    constexpr double within = 0.5; // Nautical miles.
    if (nearby.distanceNM < within)
        return localizedText("In %1", {nearby.name});
    const std::string distance = roughDistance(nearby.distanceNM, unit);
    switch (std::lround(nearby.bearingDeg / 45) & 7) {
    case 0:
        return localizedText("%1 north of %2", {distance, nearby.name});
    case 1:
        return localizedText("%1 north-east of %2", {distance, nearby.name});
    case 2:
        return localizedText("%1 east of %2", {distance, nearby.name});
    case 3:
        return localizedText("%1 south-east of %2", {distance, nearby.name});
    case 4:
        return localizedText("%1 south of %2", {distance, nearby.name});
    case 5:
        return localizedText("%1 south-west of %2", {distance, nearby.name});
    case 6:
        return localizedText("%1 west of %2", {distance, nearby.name});
    default:
        return localizedText("%1 north-west of %2", {distance, nearby.name});
    }
}

std::string exactness(double metres, std::string_view unit)
{
    constexpr double feetPerMetre = 3.28084;
    constexpr double far = 1000; // Metres.
    if (metres >= far)
        return roughDistance(metres / metresPerNauticalMile, unit);
    const bool isInFeet = DistanceUnit::named(unit).word == "mi";
    const double value = std::max(std::round(isInFeet ? metres * feetPerMetre / 10 : metres / 5), 1.0);
    return groupedInteger(std::llround(value * (isInFeet ? 10 : 5))) + (isInFeet ? " ft" : " m");
}

} // namespace skyvane
