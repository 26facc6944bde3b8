#pragma once

#include <filesystem>

/// The programs and what belongs to them, found from where one of them stands. Each is where it is
/// installed, or, where that is not there, in the build tree; where it is in neither, where it would be
/// installed.
namespace skyvane::Programs {

/// The folder of this process's program; empty where the system does not tell.
std::filesystem::path ownFolder();

/// The companion and the host, seen from the folder of either.
std::filesystem::path companion(const std::filesystem::path& folder);
std::filesystem::path host(const std::filesystem::path& folder);

/// The widgets' program, seen from the host's folder.
std::filesystem::path widgets(const std::filesystem::path& folder);

/// The decoder of photographs, seen from the companion's folder.
std::filesystem::path photo(const std::filesystem::path& folder);

/// Translations ("locale" tree), the same below an installation's prefix and a build tree's root.
std::filesystem::path catalogues(const std::filesystem::path& prefix);

} // namespace skyvane::Programs
