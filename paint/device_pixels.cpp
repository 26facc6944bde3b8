#include "paint/device_pixels.h"

#include <QPainter>

namespace skyvane::DevicePixels {

QRect visible(const QPainter& painter, const QRectF& rect)
{
    constexpr int softEdge = 1;
    const QTransform toView = painter.transform();
    const QRectF seen = toView.mapRect(rect).intersected(painter.viewport());
    const QRect pixels = (toView.inverted() * painter.deviceTransform()).mapRect(seen).toAlignedRect();
    return pixels.adjusted(-softEdge, -softEdge, softEdge, softEdge);
}

QTransform transform(const QPainter& painter)
{
    return painter.deviceTransform().inverted() * painter.transform();
}

} // namespace skyvane::DevicePixels
