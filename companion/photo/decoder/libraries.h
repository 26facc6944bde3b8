#pragma once

#include "companion/photo/decoder/scaled.h"

#include <optional>
#include <string_view>

/// The libraries that decode a file. Each is absent for a file of another format and for one with a fault.
namespace skyvane::PhotoLibrary {

/// As large as the file says, or smaller where the format can, but nowhere smaller than what covers the
/// place.
std::optional<Pixels> decodedJPEG(std::string_view file, const Extent& place);
std::optional<Pixels> decodedPNG(std::string_view file);
std::optional<Pixels> decodedWebP(std::string_view file);

} // namespace skyvane::PhotoLibrary
