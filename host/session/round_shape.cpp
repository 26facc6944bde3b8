#include "host/session/round_shape.h"

#include "paint/widget_card.h"

#include <cmath>

namespace skyvane {

namespace {

/// How far from the side a row begins whose middle is so far from the end of the corner.
int inset(double distance)
{
    constexpr double radius = WidgetCard::cornerRadius;
    const double height = radius - distance;
    return static_cast<int>(std::lround(radius - std::sqrt(radius * radius - height * height)));
}

} // namespace

/// Row by row: a bitmap would be painted, put on the X server and turned into the same rows.
QRegion roundShape(QSize size)
{
    constexpr int corner = static_cast<int>(WidgetCard::cornerRadius);
    QRegion shape{QRect{{}, size}.adjusted(0, corner, 0, -corner)};
    for (int row = 0; row < corner; ++row) {
        const int start = inset(row + 0.5);
        const int width = size.width() - 2 * start;
        shape += QRect{start, row, width, 1};
        shape += QRect{start, size.height() - 1 - row, width, 1};
    }
    return shape;
}

} // namespace skyvane
