#pragma once

#include "companion/photo/limits.h"

#include <optional>
#include <string>
#include <string_view>

namespace skyvane::PhotoFile {

/// `stripped` for one format; absent, too, for a file of another.
std::optional<std::string> strippedJPEG(std::string_view bytes);
std::optional<std::string> strippedPNG(std::string_view bytes);
std::optional<std::string> strippedWebP(std::string_view bytes);

inline bool isWithinLimits(std::uint32_t width, std::uint32_t height)
{
    return width > 0 && height > 0 && width <= longestSide && height <= longestSide;
}

} // namespace skyvane::PhotoFile
