#pragma once

#include "ui/layout/text_measurer.h"

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QRawFont>

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace skyvane {

/// Whether a glyph's outline is fitted to the pixel grid (hinting). Its advance never is.
enum class Hinting {
    none,
    usual, ///< As the user's settings of font rendering have it, in most cases slightly: up and down only.
};

/// The system's fonts: its interface family and its fixed-width one, looked up once. Measured unhinted, so
/// that a text's width is proportional to its size at every scale of the screen. Needs a QGuiApplication;
/// used from its thread only.
class FontMeasurer : public TextMeasurer {
public:
    FontMeasurer();

    double width(std::string_view text, const FontFace& face, double tracking) const override;
    LineMetrics lineMetrics(const FontFace& face) const override;

    /// The glyphs of one line whose baseline begins at (0, 0), in the unit of the face's size. With hinting
    /// that unit must be a pixel.
    QList<QGlyphRun> glyphs(
        std::string_view text, const FontFace& face, double tracking, Hinting hinting = Hinting::none) const;

private:
    /// A line of text shaped once at a fixed size, and scaled from there.
    struct ShapedLine {
        double width;
        QList<QGlyphRun> runs; ///< Relative to where its baseline begins.
    };

    /// A face at that fixed size.
    struct ShapingFace {
        QFont font;
        LineMetrics metrics;
    };

    /// A font at a size that was painted. Kept, for it caches the images of its glyphs.
    struct ScaledFont {
        QRawFont shaped;
        double scale;
        QRawFont font;
    };

    const ShapedLine& shapedLine(
        std::string_view text, const FontFace& face, double tracking, Hinting hinting) const;
    static ShapedLine shape(const QString& text, const QFont& font);
    const ShapingFace& shapingFace(const FontFace& face) const;
    QRawFont scaled(const QRawFont& shaped, double scale) const;

    QFont m_interfaceFont;
    QFont m_fixedFont;
    mutable std::map<std::pair<FontWeight, FontDesign>, ShapingFace> m_faces;
    mutable std::unordered_map<std::string, ShapedLine> m_lines; ///< By text and face; emptied when full.
    mutable std::vector<ScaledFont> m_scaled; ///< Emptied when full.
};

} // namespace skyvane
