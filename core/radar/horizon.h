#pragma once

#include "core/model/aircraft.h"

#include <optional>

/// Where something stands over the user's horizon: eyes at sea level, on a round Earth.
namespace skyvane::Horizon {

inline constexpr double metresPerNauticalMile = 1852;
inline constexpr double earthRadiusNM = 6'371'000 / metresPerNauticalMile; ///< On average.

/// Feet above the sea: the geometric altitude, else the barometric one. Absent on the ground.
std::optional<double> height(const Aircraft& aircraft);

/// Elevation angle in degrees of what is so high at this distance along the ground; negative below the
/// horizon. The triangle of Earth's centre, eyes and aircraft, solved as for satellites (G. Maral and
/// M. Bousquet, "Satellite Communications Systems", elevation from the angle at the centre).
double elevation(double distanceNM, double feet);

} // namespace skyvane::Horizon
