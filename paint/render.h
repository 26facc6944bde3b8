#pragma once

#include "paint/font_measurer.h"
#include "ui/layout/display_list.h"

#include <QByteArray>
#include <QImage>

namespace skyvane {

/// A picture's corners: round as on the desktop, with transparent pixels beside them, or square.
enum class Corners { round, square };

/// Paints the list over its background with `scale` pixels a point. The picture's width and height are the
/// list's times the scale, rounded.
QImage renderImage(const DisplayList& list, const Color& background, double scale, const FontMeasurer& fonts,
    Corners corners = Corners::square);

struct SvgLabels {
    QString title;
    QString description{};
};

/// Writes the list over its background as an SVG drawing. Its view box is in points, its natural size as many
/// pixels; text is drawn as outlines, so that no font is needed to show it.
QByteArray renderSvg(const DisplayList& list, const Color& background, const SvgLabels& labels,
    const FontMeasurer& fonts, Corners corners = Corners::square);

} // namespace skyvane
