#pragma once

#include "core/config/scope_palette.h"
#include "core/config/shared_state.h"
#include "core/model/aircraft.h"
#include "core/model/home_location.h"
#include "platform/clock.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// All that one refresh gives the widgets to show.
struct SkyEntry {
    Date date; ///< When it was made.
    std::vector<Aircraft> aircraft; ///< Nearest first.
    double radiusNM; ///< Of the query and of the scope, nautical miles; not bounded.
    std::optional<HomeLocation> home; ///< Absent until the user has set one.
    bool isSample; ///< Made from the built-in sample.
    std::string unit; ///< As `Aircraft::distanceText` takes it.
    std::optional<std::string> accentHex{}; ///< As `HexColor` reads it.

    /// The sky of this moment as it is configured. Without a configuration: nobody, no home, and the standard
    /// radius, unit and colour.
    static SkyEntry around(
        const std::optional<SharedState::Config>& config, std::vector<Aircraft> aircraft = {});

    ScopePalette palette() const { return ScopePalette::fromHex(accentHex); }

    /// Without a home and not the sample: there is nothing to show but the way to set one.
    bool needsSetup() const { return !home && !isSample; }

    /// Truncated towards zero. A radius that is no number or fits no 64-bit integer is a programming error:
    /// the process stops.
    std::int64_t wholeRadiusNM() const;

    bool operator==(const SkyEntry&) const = default;
};

} // namespace skyvane
