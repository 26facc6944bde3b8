#pragma once

#include <filesystem>

namespace skyvane {

/// The extension that belongs to a host whose program stands in this folder: the installed one, else the one
/// of a build tree. Where there is neither, the path that the installed one would have.
std::filesystem::path extensionPath(const std::filesystem::path& programFolder);

} // namespace skyvane
