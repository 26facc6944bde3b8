#pragma once

#include "core/model/home_location.h"

#include <filesystem>
#include <optional>
#include <string>

/// The one file that the companion writes and the widgets read at every refresh. No operation reports an
/// error.
namespace skyvane::SharedState {

/// The user's choices, none of them validated.
struct Config {
    HomeLocation home;
    double radiusNM; ///< Of search and scope, nautical miles.
    std::optional<std::string> distanceUnit{}; ///< As `DistanceUnit` names it.
    std::optional<std::string> widgetColorHex{}; ///< As `HexColor` reads it.

    bool operator==(const Config&) const = default;
};

/// "Library/Application Support/Skyvane" in the home folder; not created here.
std::filesystem::path directory();

/// All or nothing: absent without a file that can be read and is a whole, well-typed configuration.
std::optional<Config> read();

/// Creates the folder and replaces the file in one step. Silently does nothing where it can't.
void write(const Config& config);

/// Removes the file; the folder stays.
void clear();

} // namespace skyvane::SharedState
