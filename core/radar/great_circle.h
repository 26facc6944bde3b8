#pragma once

#include "core/model/aircraft.h"

/// Distances and bearings on a spherical Earth.
namespace skyvane::GreatCircle {

/// Nautical miles.
double distanceNM(const Coordinate& from, const Coordinate& to);

/// At the start, 0 to 360, clockwise from true north.
double initialBearing(const Coordinate& from, const Coordinate& to);

} // namespace skyvane::GreatCircle
