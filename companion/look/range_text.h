#pragma once

#include <string>
#include <string_view>

namespace skyvane {

/// How far around home the feed is asked for aircraft when this is the radius that the user has set.
double askedRadiusNM(double radiusNM);

/// A range in the user's unit, grouped by locale: "25 mi". Below 10 with one decimal where it has one. The
/// unit as `Aircraft::distanceText` takes it.
std::string rangeText(double rangeNM, std::string_view unit);

} // namespace skyvane
