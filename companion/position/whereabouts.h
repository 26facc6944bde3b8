#pragma once

#include "companion/position/place_index.h"

#include <QString>

#include <string_view>

namespace skyvane {

/// "3 km north-west of Munich", "In Munich". The unit as `DistanceUnit` names it.
QString whereabouts(const NearbyPlace& nearby, std::string_view unit);

/// How exact a position is: "30 m", "100 ft", "25 km".
std::string exactness(double metres, std::string_view unit);

} // namespace skyvane
