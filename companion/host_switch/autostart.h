#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace skyvane {

/// Where the desktop looks for what it starts with every session.
struct AutostartFolders {
    std::filesystem::path own;
    std::vector<std::filesystem::path> systemWide; ///< The first that has an entry of a name counts.

    /// As the environment says.
    static AutostartFolders standard();

    bool operator==(const AutostartFolders&) const = default;
};

/// Whether the widgets start with every session.
namespace Autostart {

/// The system's own entry where there is one, else one of the user's for this program. Whether it took.
bool turnOn(const AutostartFolders& folders, const std::filesystem::path& program);

/// Hides the system's own entry where there is one. Whether it took.
bool turnOff(const AutostartFolders& folders);

/// A program's path as the Exec line of an entry wants it.
std::string execLine(const std::string& path);

} // namespace Autostart

} // namespace skyvane
