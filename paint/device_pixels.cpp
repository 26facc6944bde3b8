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

void drawImage(QPainter& painter, QPoint corner, const QImage& image)
{
    const QTransform before = painter.transform();
    painter.setTransform(painter.deviceTransform().inverted() * before);
    painter.drawImage(corner, image);
    painter.setTransform(before);
}

} // namespace skyvane::DevicePixels
