#include "paint/ring_painter.h"

#include "paint/device_pixels.h"
#include "paint/to_qt.h"

#include <QImage>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>

namespace skyvane {

namespace {

/// In pixels of the device.
struct Ring {
    QPointF center;
    double inner; ///< Radius; below zero when the line is wider than the circle.
    double outer; ///< Radius.
};

/// What is this far from a circle's rim may have a part of a pixel in it: half a pixel's diagonal.
constexpr double softEdge = 0.71;

/// How a rim passes through a pixel; within it the rim is taken for straight.
struct Slope {
    double large; ///< The larger part of a step away from the rim, along rows or columns.
    double small; ///< The smaller part.

    /// The part of a pixel that is on the inner side of a rim so far outside of the pixel's middle.
    double covered(double inside) const
    {
        const double corner = (large + small) / 2; // How far from its middle a pixel's last corner is,
        const double nextCorner = (large - small) / 2; // and the one before.
        const double depth = std::abs(inside);
        if (depth >= corner)
            return inside > 0 ? 1 : 0;
        if (depth <= nextCorner)
            return 0.5 + inside / large;
        const double cutOff = (corner - depth) * (corner - depth) / (2 * small * large);
        return inside > 0 ? 1 - cutOff : cutOff;
    }
};

/// What a ring's color makes of transparent pixels that it covers in part, from not at all to all.
class Shades {
public:
    explicit Shades(const Color& color)
    {
        const QColor whole = toQt(color);
        for (int level = 0; level <= most; ++level) {
            const float alpha = whole.alphaF() * static_cast<float>(level);
            const auto channel = [&](float value) { return static_cast<int>(value * alpha + 0.5F); };
            m_shades[static_cast<std::size_t>(level)]
                = qRgba(channel(whole.redF()), channel(whole.greenF()), channel(whole.blueF()), channel(1));
        }
    }

    QRgb of(double covered) const { return m_shades[static_cast<std::size_t>(covered * most + 0.5)]; }

private:
    static constexpr int most = 255;
    std::array<QRgb, most + 1> m_shades{};
};

/// The part of a pixel that lies in the ring; the pixel's middle is (`x`, `y`) from the ring's.
double covered(const Ring& ring, double x, double y)
{
    const double square = x * x + y * y;
    const double nearest = ring.inner - softEdge;
    const double farthest = ring.outer + softEdge;
    if (square <= nearest * nearest || square >= farthest * farthest)
        return 0;
    const double distance = std::sqrt(square);
    const double alongRow = std::abs(x) / distance;
    const double alongColumn = std::abs(y) / distance;
    const Slope slope{.large = std::max(alongRow, alongColumn), .small = std::min(alongRow, alongColumn)};
    return slope.covered(ring.outer - distance) - slope.covered(ring.inner - distance);
}

QImage picture(const Ring& ring, const Shades& shades, const QRect& pixels)
{
    const QPointF firstMiddle = QPointF{pixels.topLeft()} + QPointF{0.5, 0.5} - ring.center;
    QImage image{pixels.size(), QImage::Format_ARGB32_Premultiplied};
    for (int row = 0; row < pixels.height(); ++row) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
        for (int column = 0; column < pixels.width(); ++column)
            line[column] = shades.of(covered(ring, firstMiddle.x() + column, firstMiddle.y() + row));
    }
    return image;
}

/// How far from the middle column a disc reaches in a row that is `y` from the middle one.
double halfChord(double radius, double y)
{
    return std::abs(y) < radius ? std::sqrt(radius * radius - y * y) : 0;
}

/// A strip's pixels that lie between two columns, also in part.
QRect between(double left, double right, const QRect& strip)
{
    return QRectF{left, qreal(strip.y()), right - left, qreal(strip.height())}.toAlignedRect();
}

/// Strips of a few rows, each painted only on the left and on the right of what the ring encloses.
void drawStrips(QPainter& painter, const Ring& ring, const Shades& shades, const QRect& visible)
{
    constexpr int height = 16;
    const double middle = ring.center.x();
    for (int top = visible.top(); top <= visible.bottom(); top += height) {
        const QRect strip = QRect{visible.left(), top, visible.width(), height} & visible;
        const double above = ring.center.y() - strip.top();
        const double below = strip.bottom() + 1 - ring.center.y();
        const double outside = halfChord(ring.outer + softEdge, std::max({-above, -below, 0.0}));
        const double inside = halfChord(ring.inner - softEdge, std::max(above, below));

        const QRect left = between(middle - outside, middle - inside, strip);
        QRect right = between(middle + inside, middle + outside, strip);
        right.setLeft(std::max(right.left(), left.right() + 1));
        for (const QRect& part : {left & visible, right & visible}) {
            if (!part.isEmpty())
                painter.drawImage(part.topLeft(), picture(ring, shades, part));
        }
    }
}

} // namespace

/// The toolkit takes millions of instructions for a ring of some hundred pixels, and hands a translucent one
/// to a pool of threads in small pieces. A ring's parts of pixels are simple to tell.
void paintRing(QPainter& painter, const Stroke& stroke, QPointF center, double radius)
{
    constexpr double smallest = 4; // Below it a rim is no longer nearly straight within a pixel.
    const auto scale = DevicePixels::scale(painter);
    const double reach = stroke.width / 2;
    if (!scale || (radius - reach) * *scale < smallest) {
        painter.setPen(QPen{toQt(stroke.color), stroke.width});
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(center, radius, radius);
        return;
    }
    const Ring ring{
        .center = painter.deviceTransform().map(center),
        .inner = (radius - reach) * *scale,
        .outer = (radius + reach) * *scale,
    };
    const QPointF corner{radius + reach, radius + reach};
    const QRect visible = DevicePixels::visible(painter, {center - corner, center + corner});
    const QTransform before = painter.transform();
    painter.setTransform(DevicePixels::transform(painter));
    drawStrips(painter, ring, Shades{stroke.color}, visible);
    painter.setTransform(before);
}

} // namespace skyvane
