#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace skyvane {

/// Colour and opacity apart: any four bytes are a pixel.
struct Pixel {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t opacity = 0;

    bool operator==(const Pixel&) const = default;
};
static_assert(sizeof(Pixel) == 4);

/// A picture that is nothing but its pixels, row by row from the top.
struct Pixels {
    std::uint32_t width;
    std::uint32_t height;
    std::vector<Pixel> list = std::vector<Pixel>(std::size_t{width} * height);

    bool operator==(const Pixels&) const = default;
};

} // namespace skyvane
