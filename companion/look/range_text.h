#pragma once

#include <string>
#include <string_view>

namespace skyvane {

/// A range in the user's unit, grouped by locale: "25 mi". Below 10 with one decimal where it has one. The
/// unit as `DistanceUnit` names it.
std::string rangeText(double rangeNM, std::string_view unit);

} // namespace skyvane
