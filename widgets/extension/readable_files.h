#pragma once

#include <filesystem>
#include <vector>

/// Files and folders that the processes of the extension may read, each with all that is in it.
namespace skyvane::Extension::ReadableFiles {

/// The configuration's folder, or the nearest that is there yet; certificates; languages and time zones.
std::vector<std::filesystem::path> ofDecoder();

/// What this machine's name services may need.
std::vector<std::filesystem::path> ofConnector();

} // namespace skyvane::Extension::ReadableFiles
