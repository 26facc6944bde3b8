#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace skyvane {

/// Where the desktop looks for what it starts with every session.
struct AutostartFolders {
    std::filesystem::path own;
    std::vector<std::filesystem::path> systemWide; ///< The first that has an entry of a name counts.
    bool isShellThere = false; ///< One that starts the widgets itself, unless the user's own entry is hidden.

    /// Those of the XDG base directories, as the environment has them.
    static AutostartFolders standard();

    bool operator==(const AutostartFolders&) const = default;
};

/// Whether the widgets start with every session.
namespace Autostart {

/// The user's own, be it there or not.
std::filesystem::path ownEntry(const AutostartFolders& folders);

bool isOn(const AutostartFolders& folders);

/// Uncovers what starts them anyway, the system-wide entry or the shell, else writes an entry of the user's
/// for this program. Returns whether that worked.
bool turnOn(const AutostartFolders& folders, const std::filesystem::path& program);

/// Covers what starts them anyway, else removes the user's entry. Returns whether that worked.
bool turnOff(const AutostartFolders& folders);

/// What the Exec key of a desktop entry says to start the host at this path under its supervisor.
std::string execLine(const std::string& path);

} // namespace Autostart

} // namespace skyvane
