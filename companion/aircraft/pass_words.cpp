#include "companion/aircraft/pass_words.h"

#include "alerts/closest_approach.h"
#include "alerts/straight_flight.h"
#include "platform/text/compass.h"
#include "platform/text/localized.h"

#include <chrono>
#include <cmath>
#include <cstdint>

namespace skyvane {

std::string passText(const Aircraft& aircraft, const HomeLocation& home)
{
    constexpr double lowest = 5; // Degrees.
    constexpr std::chrono::minutes farthest{20};
    constexpr std::int64_t straightUp = 80; // Degrees; beyond it nobody asks in which direction.
    if (!fliesStraight(aircraft, /*turnRate=*/std::nullopt))
        return {};
    const auto pass = closestApproach(aircraft, {.latitude = home.latitude, .longitude = home.longitude});
    if (!pass)
        return {};
    if (pass->in.count() < 0)
        return localized("It is flying away.");
    if (pass->in > farthest || !(pass->elevationDeg >= lowest))
        return {};
    const std::int64_t minutes = std::llround(pass->in.count() / 60);
    const std::int64_t degrees = std::llround(pass->elevationDeg);
    if (degrees >= straightUp)
        return minutes == 0 ? localized("It passes right above you now.")
                            : localized("It passes right above you in %1 min.", {minutes});
    const std::string to = compassDirection(pass->bearingDeg);
    return minutes == 0 ? localized("It passes %1° high in the %2 now.", {degrees, to})
                        : localized("It passes %1° high in the %2 in %3 min.", {degrees, to, minutes});
}

} // namespace skyvane
