#pragma once

#include "ui/layout/text_measurer.h"

#include <QFont>
#include <QGlyphRun>
#include <QList>

#include <string>
#include <string_view>
#include <unordered_map>

namespace skyvane {

/// The system's fonts: its interface family and its fixed-width one, looked up once. Unhinted, so that a
/// width holds at every scale and grows with the size. Needs a QGuiApplication; used from its thread only.
class FontMeasurer : public TextMeasurer {
public:
    FontMeasurer();

    double width(std::string_view text, const FontFace& face, double tracking) const override;
    LineMetrics lineMetrics(const FontFace& face) const override;

    /// The glyphs of one line from its baseline's beginning at (0, 0), sized in points whatever the device.
    QList<QGlyphRun> glyphs(std::string_view text, const FontFace& face, double tracking) const;

private:
    QFont shapingFont(const FontFace& face, double tracking) const;

    QFont m_interfaceFont;
    QFont m_fixedFont;
    mutable std::unordered_map<std::string, double> m_widths; ///< By text and face; emptied when full.
};

} // namespace skyvane
