#include "paint/line_painter.h"

#include "paint/device_pixels.h"
#include "paint/to_qt.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

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

/// The stretch between two edges, moved to whole pixels; at least one wide.
struct PixelRange {
    int first;
    int count;

    PixelRange(double one, double other)
        : first(nearest(std::min(one, other))), count(std::max(1, nearest(std::abs(one - other))))
    {
    }

    static int nearest(double edge) { return static_cast<int>(std::floor(edge + 0.5)); }
};

/// A line along a row or a column of pixels would lie on two at half its strength.
void drawOnWholePixels(QPainter& painter, const QColor& color, double reach, QPointF from, QPointF to)
{
    const bool isRow = from.y() == to.y();
    const QPointF sideways = isRow ? QPointF{0, reach} : QPointF{reach, 0};
    const QTransform toDevice = painter.deviceTransform();
    const QPointF one = toDevice.map(from - sideways);
    const QPointF other = toDevice.map(to + sideways);
    const PixelRange columns{one.x(), other.x()};
    const PixelRange rows{one.y(), other.y()};
    const QTransform before = painter.transform();
    painter.setTransform(DevicePixels::transform(painter));
    painter.fillRect(columns.first, rows.first, columns.count, rows.count, color);
    painter.setTransform(before);
}

} // namespace

/// Blending a translucent line, the toolkit hands every few pixels of it to a pool of threads and waits for
/// them, which takes several times what the line itself does. Replacing pixels it does at once.
void paintLine(QPainter& painter, const Stroke& stroke, QPointF from, QPointF to)
{
    painter.setPen(QPen{toQt(stroke.color), stroke.width, Qt::SolidLine, Qt::FlatCap});
    const bool hasPixels = painter.paintEngine()->type() == QPaintEngine::Raster;
    const bool isAlongAnAxis = (from.x() == to.x()) != (from.y() == to.y());
    if (isAlongAnAxis && DevicePixels::scale(painter))
        drawOnWholePixels(painter, toQt(stroke.color), stroke.width / 2, from, to);
    else if (hasPixels && stroke.color.opacity < 1)
        drawOnLayer(painter, stroke.width / 2, from, to);
    else
        painter.drawLine(from, to);
}

} // namespace skyvane
