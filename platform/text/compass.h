#pragma once

#include <string>

namespace skyvane {

/// The nearest of eight compass points to a bearing, degrees clockwise from north, in the user's language:
/// "north", "north-east".
std::string compassDirection(double bearingDeg);

} // namespace skyvane
