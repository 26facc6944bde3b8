#include "companion/look/star_shape.h"

#include <cmath>
#include <numbers>

namespace skyvane {

QPainterPath starShape()
{
    constexpr int corners = 10; // Every other one a point.
    constexpr QPointF centre{8, 8.5};
    QPainterPath path;
    for (int corner = 0; corner < corners; ++corner) {
        const double radius = corner % 2 == 0 ? 6.2 : 2.6;
        const double angle = corner * 2 * std::numbers::pi / corners;
        const QPointF place = centre + QPointF{radius * std::sin(angle), -radius * std::cos(angle)};
        if (corner == 0)
            path.moveTo(place);
        else
            path.lineTo(place);
    }
    path.closeSubpath();
    return path;
}

} // namespace skyvane
