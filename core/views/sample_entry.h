#pragma once

#include "core/views/sky_entry.h"

#include <optional>
#include <string>

namespace skyvane {

/// Five made-up aircraft for galleries and placeholders, the last one military.
SkyEntry sampleEntry(std::optional<std::string> accentHex = std::nullopt);

} // namespace skyvane
