#include "core/views/sky_entry.h"

#include "core/feed/search_radius.h"
#include "core/model/distance_unit.h"

#include <cstdlib>
#include <utility>

namespace skyvane {

SkyEntry SkyEntry::around(const std::optional<SharedState::Config>& config, std::vector<Aircraft> aircraft)
{
    SkyEntry entry{
        .date = Clock::now(),
        .aircraft = std::move(aircraft),
        .radiusNM = SearchRadius::standard,
        .home = std::nullopt,
        .isSample = false,
        .unit = DistanceUnit::standard,
    };
    if (config) {
        entry.radiusNM = config->radiusNM;
        entry.home = config->home;
        entry.unit = config->distanceUnit.value_or(DistanceUnit::standard);
        entry.accentHex = config->widgetColorHex;
    }
    return entry;
}

std::int64_t SkyEntry::wholeRadiusNM() const
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (!(radiusNM >= -limit && radiusNM < limit))
        std::abort();
    return static_cast<std::int64_t>(radiusNM);
}

} // namespace skyvane
