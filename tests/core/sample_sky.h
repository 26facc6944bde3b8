#pragma once

#include "core/views/sky_entry.h"
#include "platform/text/locale.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace skyvane::test {

inline constexpr Date morning{std::chrono::sys_days{std::chrono::year{2026} / 3 / 5} + std::chrono::hours{10}
    + std::chrono::minutes{42}};

/// Numbers, times and time zone of the texts that a test expects.
inline Locale english()
{
    return {.numbers = "en_US", .times = "en_US", .timeZone = "UTC"};
}

/// This many aircraft one after another east of home, the nearest at 1 NM.
inline SkyEntry skyOf(std::size_t count)
{
    SkyEntry entry{
        .date = morning,
        .aircraft = {},
        .radiusNM = 25,
        .home = HomeLocation{.latitude = 51.5, .longitude = -0.12, .label = "Home"},
        .isSample = false,
        .unit = "nm",
    };
    for (std::size_t index = 1; index <= count; ++index) {
        entry.aircraft.push_back({
            .hex = "a" + std::to_string(index),
            .flight = "TST" + std::to_string(index),
            .distanceNM = static_cast<double>(index),
            .directionDeg = 90.0,
        });
    }
    return entry;
}

} // namespace skyvane::test
