#pragma once

#include "ui/tree/color.h"

#include <optional>
#include <string_view>

namespace skyvane {

/// One phosphor hue on a very dark background of the same hue, as on a radar screen.
struct ScopePalette {
    Color phosphor; ///< Rings, blips and text.
    Color background; ///< Phosphor at 0.09 of each channel.

    /// The user's accent; the standard palette when it is absent or no colour.
    static ScopePalette fromHex(std::optional<std::string_view> hex);

    /// Green.
    static const ScopePalette& standard();

    Color dim() const { return phosphor.withOpacity(0.55); }
    Color faint() const { return phosphor.withOpacity(0.22); }

    bool operator==(const ScopePalette&) const = default;
};

} // namespace skyvane
