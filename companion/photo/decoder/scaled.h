#pragma once

#include "companion/photo/pixels.h"

namespace skyvane {

/// Width and height in pixels.
struct Extent {
    std::uint32_t width;
    std::uint32_t height;

    Extent transposed() const { return {.width = height, .height = width}; }
    bool operator==(const Extent&) const = default;
};

/// The least extent of the same shape that still covers the place; itself where it is smaller.
Extent covering(const Extent& extent, const Extent& place);

/// Rows become columns.
Pixels transposed(const Pixels& pixels);

/// Scaled down; each pixel is the mean of those that it stands for, by their share of it and their opacity.
Pixels scaledDown(Pixels pixels, const Extent& extent);

/// The part in the middle, where there is more than that.
Pixels middleOf(const Pixels& pixels, const Extent& most);

} // namespace skyvane
