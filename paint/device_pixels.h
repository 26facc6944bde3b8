#pragma once

#include <QRect>
#include <QTransform>

#include <optional>

class QPainter;

/// The pixels that a painter paints on, whatever it takes for a unit.
namespace skyvane::DevicePixels {

/// What the painter maps a rectangle to, a soft edge included, as far as that is seen.
QRect visible(const QPainter& painter, const QRectF& rect);

/// How many pixels make a unit; absent where there are none, as in a drawing of lines, or where an upright
/// square of the painter's is none in them.
std::optional<double> scale(const QPainter& painter);

/// The painter's transform under which its unit is a pixel.
QTransform transform(const QPainter& painter);

} // namespace skyvane::DevicePixels
