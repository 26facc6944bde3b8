#pragma once

namespace skyvane {

/// sRGB, each channel and the opacity 0 to 1.
struct Color {
    double red;
    double green;
    double blue;
    double opacity = 1;

    /// The same hue at another opacity.
    constexpr Color withOpacity(double value) const { return {red, green, blue, value}; }

    bool operator==(const Color&) const = default;
};

} // namespace skyvane
