#pragma once

#include "paint/font_measurer.h"
#include "ui/layout/display_list.h"

#include <QByteArray>
#include <QImage>

namespace skyvane {

/// Of a picture: as a widget's card has them on the desktop, or none.
enum class Corners { round, square };

/// The list over its background, `scale` pixels a point: its size times the scale, rounded.
QImage renderImage(const DisplayList& list, const Color& background, double scale, const FontMeasurer& fonts,
    Corners corners = Corners::square);

struct SvgLabels {
    QString title;
    QString description{};
};

/// The list as an SVG drawing whose view box is in points, and whose natural size is as many pixels. Text is
/// drawn as outlines.
QByteArray renderSvg(const DisplayList& list, const Color& background, const SvgLabels& labels,
    const FontMeasurer& fonts, Corners corners = Corners::square);

} // namespace skyvane
