#pragma once

#include "ui/layout/geometry.h"
#include "ui/layout/text_measurer.h"
#include "ui/tree/view.h"

#include <string>
#include <vector>

namespace skyvane {

/// A text broken into the lines that it is painted as.
struct TextBlock {
    struct Line {
        std::string string;
        double width;

        bool operator==(const Line&) const = default;
    };

    std::vector<Line> lines; ///< At least one.
    FontFace face; ///< Shrunk, where that was needed.
    double tracking; ///< Shrunk with the face.
    LineMetrics metrics;

    Size size() const;
};

/// The font with its size settled and kept within what a font can be.
FontFace faceOf(const Font& font);

/// The text in lines of at most `width` points, which may be infinite. A single character, or the "…" of a
/// truncated text, may be wider.
TextBlock layoutText(const Text& text, double width, const TextMeasurer& measurer);

} // namespace skyvane
