#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace skyvane::test {

/// What is painted on.
struct Canvas {
    QSize pixels{120, 100};
    double resolution = 1; ///< Pixels a unit of the device.
    QColor background = Qt::darkBlue;
    QTransform transform{};
};

template <class Draw>
QImage painted(const Canvas& canvas, const Draw& draw)
{
    QImage image{canvas.pixels, QImage::Format_ARGB32_Premultiplied};
    image.setDevicePixelRatio(canvas.resolution);
    image.fill(canvas.background);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(canvas.transform);
    draw(painter);
    painter.end();
    return image;
}

inline QImage untouched(const Canvas& canvas)
{
    return painted(canvas, [](QPainter&) {});
}

/// The largest difference of any channel of any pixel.
inline int largestDifference(const QImage& one, const QImage& another)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = another.pixelColor(x, y);
            largest = std::max({largest, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                std::abs(a.blue() - b.blue()), std::abs(a.alpha() - b.alpha())});
        }
    }
    return largest;
}

} // namespace skyvane::test
