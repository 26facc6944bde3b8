#pragma once

#include "core/model/aircraft.h"
#include "core/model/home_location.h"

#include <optional>
#include <string>

namespace skyvane {

/// Where an aircraft stands, seen from home.
struct WhereToLook {
    double bearingDeg; ///< Clockwise from true north.
    std::optional<double> elevationDeg{}; ///< Above the horizon, negative below it; absent without a height.

    bool operator==(const WhereToLook&) const = default;
};

/// Direction and elevation of the aircraft as seen from home, at sea level on a round Earth. Absent when its
/// direction is unknown.
std::optional<WhereToLook> whereToLook(const Aircraft& aircraft, const std::optional<HomeLocation>& home);

/// A sentence in the user's language: "Look north-east, about 12° above the horizon." Of one on the ground,
/// in which direction that is.
std::string lookText(const Aircraft& aircraft, const WhereToLook& where);

} // namespace skyvane
