#pragma once

#include <QRect>
#include <QTransform>

#include <optional>

class QPainter;

/// The pixels of the device that a painter paints on, whatever the painter's own unit is.
namespace skyvane::DevicePixels {

/// The pixels that a rectangle covers, partly covered ones at its edges included, clipped to the device.
QRect visible(const QPainter& painter, const QRectF& rect);

/// How many pixels make one of the painter's units. Absent for a vector device such as an SVG file, and for a
/// transform that rotates, shears, or scales width and height differently.
std::optional<double> scale(const QPainter& painter);

/// The transform to give the painter so that one of its units is one pixel.
QTransform transform(const QPainter& painter);

} // namespace skyvane::DevicePixels
