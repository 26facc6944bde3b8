#pragma once

#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

namespace skyvane::Atlas {

/// English names of well-known cities, and what they are called in the first of the languages that has a
/// catalogue of the system's weather library in the folder (a "locale" tree). Empty for English.
std::unordered_map<std::string, std::string> ownNames(
    const std::filesystem::path& folder, const std::vector<std::string>& languages);

} // namespace skyvane::Atlas
