#pragma once

#include "platform/text/unicode.h"
#include "ui/layout/text_measurer.h"

namespace skyvane::test {

/// Every character is 0.6 of the size wide, bold or not; a line is as high as the size. 10 points: 6 wide, 10
/// high.
class EvenMeasurer : public TextMeasurer {
public:
    double width(std::string_view text, const FontFace& face, double tracking) const override
    {
        ++questions;
        return static_cast<double>(Unicode::characters(text).size()) * (0.6 * face.size + tracking);
    }

    LineMetrics lineMetrics(const FontFace& face) const override
    {
        return {.ascent = 0.75 * face.size, .descent = 0.25 * face.size};
    }

    mutable int questions = 0; ///< How often `width` was asked.
};

} // namespace skyvane::test
