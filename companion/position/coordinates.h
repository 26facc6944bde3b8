#pragma once

#include "core/model/aircraft.h"

#include <string>
#include <string_view>
#include <variant>

/// Positions as people write and paste them.
namespace skyvane::Coordinates {

enum class Problem {
    unreadable,
    ambiguous, ///< A comma could part two numbers or mark a decimal.
    outOfRange, ///< Beyond 90 degrees of latitude, 180 of longitude, or 60 minutes or seconds.
};

using Reading = std::variant<Coordinate, Problem>;

/// Decimal degrees, or degrees, minutes and seconds, latitude first unless letters say otherwise; or a `geo:`
/// URI. Any bytes may be read.
Reading read(std::string_view text);

/// The coordinate rounded to 5 decimals, about a metre.
Coordinate rounded(const Coordinate& coordinate);

/// The coordinate written so that `read` reads it, to 6 decimals at most; the same in every locale.
std::string text(const Coordinate& coordinate);

} // namespace skyvane::Coordinates
