#pragma once

#include "core/config/shared_state.h"
#include "core/model/aircraft.h"

#include <optional>
#include <string>

namespace skyvane {

inline constexpr double smallestRadiusNM = 1;
inline constexpr double largestRadiusNM = 250;

/// What has been chosen so far. What a file says is kept as it stands until it is chosen anew, even where
/// nothing here would offer it.
struct SettingsDraft {
    std::optional<Coordinate> place{}; ///< Without one there is nothing to write.
    std::string label{};
    double radiusNM = 25;
    std::optional<std::string> unit{}; ///< As `SharedState::Config` has it.
    std::optional<std::string> accentHex{};

    static SettingsDraft of(const SharedState::Config& config);

    /// Absent without a place.
    std::optional<SharedState::Config> toConfig() const;

    bool operator==(const SettingsDraft&) const = default;
};

/// `draft` as it goes on when the file changes from `before` to `now`: fields chosen since stand, the others
/// follow the file.
SettingsDraft merged(const SettingsDraft& draft, const SettingsDraft& before, const SettingsDraft& now);

} // namespace skyvane
