#pragma once

#include "companion/photo/pixels.h"

#include <string_view>

namespace skyvane {

/// How a camera was held, the Orientation of Exif: the picture is transposed, then reversed.
struct Turn {
    bool isTransposed = false; ///< Rows become columns.
    bool isMirrored = false; ///< Then left and right are exchanged.
    bool isFlipped = false; ///< Then top and bottom.

    bool operator==(const Turn&) const = default;
};

/// What a JPEG's Exif segment says; none where it has no such segment, or one that makes no sense.
Turn turnOf(std::string_view jpeg);

Pixels turned(Pixels pixels, const Turn& turn);

} // namespace skyvane
