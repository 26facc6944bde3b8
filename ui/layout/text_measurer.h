#pragma once

#include "ui/tree/font.h"

#include <string_view>

namespace skyvane {

/// A font with its size settled, points.
struct FontFace {
    double size;
    FontWeight weight = FontWeight::regular;
    FontDesign design = FontDesign::standard;

    bool operator==(const FontFace&) const = default;
};

/// A face's vertical extent, points; a line is `ascent + descent` high.
struct LineMetrics {
    double ascent;
    double descent;

    double height() const { return ascent + descent; }
};

/// What layout needs to know of fonts. The painter's own answers for real ones, a test's for none at all.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;

    /// Points that one line of this text advances, `tracking` points after each character included.
    virtual double width(std::string_view text, const FontFace& face, double tracking) const = 0;

    virtual LineMetrics lineMetrics(const FontFace& face) const = 0;
};

} // namespace skyvane
