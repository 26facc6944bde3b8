#pragma once

#include "companion/aircraft/where_to_look.h"
#include "core/model/aircraft.h"
#include "core/model/home_location.h"

#include <chrono>
#include <vector>

namespace skyvane {

/// Where an aircraft stands in the sky at a moment to come.
struct SkyPathPoint {
    std::chrono::seconds in; ///< From when it was seen.
    WhereToLook where;

    bool operator==(const SkyPathPoint&) const = default;
};

/// The way over the sky of an aircraft that flies straight on, from where it was seen and as long as it is
/// above the horizon, ten minutes at most. Empty where that is not known, and for one below the horizon or
/// that cannot be expected to fly straight on.
std::vector<SkyPathPoint> skyPath(const Aircraft& aircraft, const HomeLocation& home);

} // namespace skyvane
