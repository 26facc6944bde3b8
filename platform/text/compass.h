#pragma once

#include <string>

namespace skyvane {

/// The nearest of eight compass points to a bearing, degrees clockwise from north, in the user's language, as
/// it stands within a sentence: "north", "north-east".
std::string compassDirection(double bearingDeg);

/// The same in short, standing alone: "N", "NE".
std::string compassPoint(double bearingDeg);

} // namespace skyvane
