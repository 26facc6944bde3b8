#include "paint/device_pixels.h"

#include <QPaintEngine>
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

std::optional<double> scale(const QPainter& painter)
{
    const QTransform toDevice = painter.deviceTransform();
    const bool isUpright = toDevice.type() <= QTransform::TxScale && toDevice.m11() > 0
        && qFuzzyCompare(toDevice.m11(), toDevice.m22());
    return isUpright && painter.paintEngine()->type() == QPaintEngine::Raster ? std::optional{toDevice.m11()}
                                                                              : std::nullopt;
}

QTransform transform(const QPainter& painter)
{
    return painter.deviceTransform().inverted() * painter.transform();
}

} // namespace skyvane::DevicePixels
