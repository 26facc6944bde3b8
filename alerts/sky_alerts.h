#pragma once

#include "alerts/sky_alert.h"
#include "alerts/turn_rates.h"
#include "core/views/sky_entry.h"

#include <chrono>
#include <vector>

namespace skyvane {

/// How long before it passes overhead an aircraft is announced: time to go to a window.
inline constexpr std::chrono::minutes timeToLookUp{3};

/// What these rules find worth telling about a moment's sky: the most urgent first, of equals the soonest, of
/// these the nearest. One aircraft gives one alert for being there, whatever there is to say of it, and one
/// for passing overhead.
std::vector<SkyAlert> skyAlerts(
    const SkyEntry& sky, const SkyAlertRules& rules, const TurnRates& turnRates = {});

/// As an aircraft that passes overhead is announced, of the built-in sample.
SkyAlert sampleSkyAlert();

} // namespace skyvane
