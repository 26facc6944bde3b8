#pragma once

#include <QRect>
#include <QTransform>

class QImage;
class QPainter;

/// The pixels that a painter paints on, whatever it takes for a unit.
namespace skyvane::DevicePixels {

/// What the painter maps a rectangle to, a soft edge included, as far as that is seen.
QRect visible(const QPainter& painter, const QRectF& rect);

/// Lays the picture over what is there, pixel on pixel.
void drawImage(QPainter& painter, QPoint corner, const QImage& image);

} // namespace skyvane::DevicePixels
