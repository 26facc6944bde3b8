#pragma once

#include <string_view>

namespace skyvane {

/// What distances are written in.
struct DistanceUnit {
    std::string_view word; ///< As a configuration names it and a text ends in it.
    double perNauticalMile;

    /// Where nothing is chosen.
    static constexpr const char* standard = "mi";

    /// "nm" and "km" are themselves; any other word, "NM" included, means statute miles.
    static constexpr DistanceUnit named(std::string_view word)
    {
        if (word == "nm")
            return {.word = "nm", .perNauticalMile = 1};
        if (word == "km")
            return {.word = "km", .perNauticalMile = 1.852};
        return {.word = "mi", .perNauticalMile = 1.15078};
    }

    bool operator==(const DistanceUnit&) const = default;
};

} // namespace skyvane
