#include "paint/stroke_painter.h"

#include "paint/to_qt.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>

namespace skyvane {

namespace {

using Outline = std::function<void(QPainter&)>;

void draw(QPainter& painter, const Stroke& stroke, const Outline& outline)
{
    painter.setPen(QPen{toQt(stroke.color), stroke.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    painter.setBrush(Qt::NoBrush);
    outline(painter);
}

/// What the painter maps a rectangle to, on its device as far as that is seen.
QRect devicePixels(const QPainter& painter, const QTransform& toDevice, const QRectF& rect)
{
    constexpr int softEdge = 1;
    const QTransform toView = painter.transform();
    const QRectF seen = toView.mapRect(rect).intersected(painter.viewport());
    const QRect pixels = (toView.inverted() * toDevice).mapRect(seen).toAlignedRect();
    return pixels.adjusted(-softEdge, -softEdge, softEdge, softEdge);
}

/// Pixels of its own, on which the stroke replaces what is there, which is nothing.
void drawOnLayer(QPainter& painter, const Stroke& stroke, const QRectF& bounds, const Outline& outline)
{
    const QTransform toDevice = painter.deviceTransform();
    const double reach = stroke.width / 2;
    const QRect pixels = devicePixels(painter, toDevice, bounds.adjusted(-reach, -reach, reach, reach));
    QImage layer{pixels.size(), QImage::Format_ARGB32_Premultiplied};
    layer.fill(Qt::transparent);
    {
        QPainter onLayer{&layer};
        onLayer.setRenderHint(QPainter::Antialiasing);
        onLayer.setCompositionMode(QPainter::CompositionMode_Source);
        onLayer.setTransform(toDevice * QTransform::fromTranslate(-pixels.x(), -pixels.y()));
        draw(onLayer, stroke, outline);
    }
    painter.save();
    painter.setTransform(toDevice.inverted() * painter.transform());
    painter.drawImage(pixels.topLeft(), layer);
    painter.restore();
}

} // namespace

/// Blending a translucent line, the toolkit hands every few pixels of it to a pool of threads and waits for
/// them, which takes several times what the line itself does. Replacing pixels it does at once.
void paintStroke(QPainter& painter, const Stroke& stroke, const QRectF& bounds, const Outline& outline)
{
    const bool hasPixels = painter.paintEngine()->type() == QPaintEngine::Raster;
    if (hasPixels && stroke.color.opacity < 1)
        drawOnLayer(painter, stroke, bounds, outline);
    else
        draw(painter, stroke, outline);
}

} // namespace skyvane
