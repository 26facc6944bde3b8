#pragma once

#include "companion/photo/pixels.h"

#include <optional>
#include <string_view>

namespace skyvane {

/// Decodes bytes from strangers, as far as `PhotoFile` lets them pass: as many pixels as `PhotoAnswer` may
/// have, as the camera was held. Absent for everything else.
std::optional<Pixels> decodedPhoto(std::string_view bytes);

} // namespace skyvane
