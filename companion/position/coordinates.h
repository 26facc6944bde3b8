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
    eastOrWest, ///< A letter O, which is east in one language and west in another.
    shortCode, ///< A plus code that lacks its beginning.
    shortLink, ///< A link that only its site can make a position of.
    linkWithoutPosition,
};

using Reading = std::variant<Coordinate, Problem>;

/// Decimal degrees, or degrees, minutes and seconds, latitude first unless letters or words say otherwise; a
/// plus code or a Maidenhead locator (the middle of its square); a `geo:` URI; or a link that was copied from
/// a map on the web. `language`: the user's, such as "de" or "de_AT"; says what the letter O means. Any bytes
/// may be read.
Reading read(std::string_view text, std::string_view language = {});

/// The coordinate rounded to 5 decimals, about a metre.
Coordinate rounded(const Coordinate& coordinate);

/// The coordinate written so that `read` reads it, to 6 decimals at most; the same in every locale.
std::string text(const Coordinate& coordinate);

} // namespace skyvane::Coordinates
