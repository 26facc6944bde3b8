#include "paint/line_painter.h"

#include "paint/device_pixels.h"
#include "paint/to_qt.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>

namespace skyvane {

namespace {

/// Draws the line on an empty layer, where it replaces pixels instead of blending with them, and lays the
/// layer over what the painter has painted.
void drawOnLayer(QPainter& painter, double reach, QPointF from, QPointF to)
{
    const QRectF bounds = QRectF{from, to}.normalized().adjusted(-reach, -reach, reach, reach);
    const QRect pixels = DevicePixels::visible(painter, bounds);
    QImage layer{pixels.size(), QImage::Format_ARGB32_Premultiplied};
    layer.fill(Qt::transparent);
    {
        QPainter onLayer{&layer};
        onLayer.setRenderHint(QPainter::Antialiasing);
        onLayer.setCompositionMode(QPainter::CompositionMode_Source);
        onLayer.setTransform(painter.deviceTransform() * QTransform::fromTranslate(-pixels.x(), -pixels.y()));
        onLayer.setPen(painter.pen());
        onLayer.drawLine(from, to);
    }
    const QTransform before = painter.transform();
    painter.setTransform(DevicePixels::transform(painter));
    painter.drawImage(pixels.topLeft(), layer);
    painter.setTransform(before);
}

} // namespace

/// Blending a translucent line, the toolkit hands every few pixels of it to a pool of threads and waits for
/// them, which takes several times what the line itself does. Replacing pixels it does at once.
void paintLine(QPainter& painter, const Stroke& stroke, QPointF from, QPointF to)
{
    painter.setPen(QPen{toQt(stroke.color), stroke.width, Qt::SolidLine, Qt::FlatCap});
    const bool hasPixels = painter.paintEngine()->type() == QPaintEngine::Raster;
    if (hasPixels && stroke.color.opacity < 1)
        drawOnLayer(painter, stroke.width / 2, from, to);
    else
        painter.drawLine(from, to);
}

} // namespace skyvane
