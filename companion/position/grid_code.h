#pragma once

#include "core/model/aircraft.h"

#include <optional>
#include <string>
#include <string_view>

/// Codes that name a square of the Earth's surface, in capitals or not: plus codes (Open Location Code) and
/// Maidenhead locators.
namespace skyvane::GridCode {

/// The middle of the square; absent for all that is neither code in full.
std::optional<Coordinate> middle(std::string_view text);

/// A plus code without its beginning, as maps show it, and the town behind it that makes up for that.
struct ShortCode {
    std::string code;
    std::string town; ///< May be empty.

    bool operator==(const ShortCode&) const = default;
};

/// "4HX8+9C Munich"; absent for everything else.
std::optional<ShortCode> shortCode(std::string_view text);

/// The middle of the square of that name nearest to the place.
std::optional<Coordinate> middleNear(const ShortCode& code, const Coordinate& place);

} // namespace skyvane::GridCode
