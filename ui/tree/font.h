#pragma once

#include <optional>

namespace skyvane {

enum class TextStyle { title3, caption, caption2 };
enum class FontWeight { regular, semibold, bold };
enum class FontDesign { standard, monospaced };

/// A size in points, or that of a text style.
struct FontSize {
    constexpr FontSize(double size) : points(size) { }
    constexpr FontSize(TextStyle textStyle)
        : points(textStyle == TextStyle::title3 ? 15 : 10), style(textStyle)
    {
    }

    double points;
    std::optional<TextStyle> style{}; ///< Absent for a size in points.

    bool operator==(const FontSize&) const = default;
};

/// A face of the system's interface family or, monospaced, of its fixed-width family.
struct Font {
    FontSize size;
    FontWeight weight = FontWeight::regular;
    FontDesign design = FontDesign::standard;

    bool operator==(const Font&) const = default;
};

} // namespace skyvane
