#pragma once

#include "core/config/shared_state.h"
#include "core/feed/search_radius.h"
#include "core/model/aircraft.h"
#include "core/views/sky_entry.h"

#include <optional>
#include <string>

namespace skyvane {

/// What has been chosen so far. What a file says is kept as it stands until it is chosen anew, even where
/// nothing here would offer it.
struct SettingsDraft {
    std::optional<Coordinate> place{}; ///< Without one there is nothing to write.
    std::string label{};
    double radiusNM = SearchRadius::standard;
    std::optional<std::string> unit{}; ///< As `SharedState::Config` has it.
    std::optional<std::string> accentHex{};

    static SettingsDraft of(const SharedState::Config& config);

    /// Absent without a place.
    std::optional<SharedState::Config> toConfig() const;

    /// The sky with the unit, the colour and, within its bounds, the radius that are chosen.
    SkyEntry asChosen(SkyEntry entry) const;

    bool operator==(const SettingsDraft&) const = default;
};

/// `draft` as it goes on when the file changes from `before` to `now`: fields chosen since stand, the others
/// follow the file.
SettingsDraft merged(const SettingsDraft& draft, const SettingsDraft& before, const SettingsDraft& now);

} // namespace skyvane
