#pragma once

#include "paint/render.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <algorithm>
#include <cstdlib>

namespace skyvane::test {

inline constexpr Color black{0, 0, 0};
inline constexpr Color white{1, 1, 1};

/// White on black.
inline QImage picture(Size size, std::vector<DisplayItem> items, double scale = 1)
{
    return renderImage({.size = size, .items = std::move(items)}, black, scale, FontMeasurer{});
}

inline int brightness(const QImage& image, int x, int y)
{
    return image.pixelColor(x, y).green();
}

/// The smallest rectangle that holds every pixel brighter than a fifth; empty without any.
inline QRect ink(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (brightness(image, x, y) > 50)
                bounds |= QRect{x, y, 1, 1};
        }
    }
    return bounds;
}

/// The mean difference of two pictures of one size, 0 to 255.
inline double difference(const QImage& one, const QImage& another)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            sum += std::abs(brightness(one, x, y) - brightness(another, x, y));
    }
    return sum / (one.width() * one.height());
}

} // namespace skyvane::test
