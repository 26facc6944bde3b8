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

/// Whether a glyph's shape bends to the pixels; its advance never does.
enum class Hinting {
    none,
    usual, ///< As the user's settings of font rendering have it, in most cases slightly: up and down only.
};

/// The system's fonts: its interface family and its fixed-width one, looked up once. Measured unhinted, so
/// that a width holds at every scale and grows with the size. Needs a QGuiApplication; used from its thread
/// only.
class FontMeasurer : public TextMeasurer {
public:
    FontMeasurer();

    double width(std::string_view text, const FontFace& face, double tracking) const override;
    LineMetrics lineMetrics(const FontFace& face) const override;

    /// The glyphs of one line from its baseline's beginning at (0, 0), in the unit of the face's size. Hinted
    /// ones want it to be a pixel.
    QList<QGlyphRun> glyphs(
        std::string_view text, const FontFace& face, double tracking, Hinting hinting = Hinting::none) const;

private:
    /// One line at the shaping size.
    struct ShapedLine {
        double width;
        QList<QGlyphRun> runs; ///< From its baseline's beginning.
    };

    /// A face at the shaping size.
    struct ShapingFace {
        QFont font;
        LineMetrics metrics;
    };

    /// Holds the pictures of its glyphs, so that they are drawn once only.
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
