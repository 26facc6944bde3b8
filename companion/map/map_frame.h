#pragma once

#include "companion/map/map_data.h"

#include <QPointF>
#include <QRectF>

#include <optional>

namespace skyvane {

/// How the Earth lies in a rectangle: azimuthal equidistant projection. From the middle every distance and
/// every direction is true, as on the scope.
class MapFrame {
public:
    /// `middle` is shown in the middle of the area.
    MapFrame(const Coordinate& middle, double pointsPerNM, const QRectF& area);

    const QRectF& area() const { return m_area; }
    double pointsPerNM() const { return m_scale / earthRadiusNM; }

    QPointF place(const Direction& direction) const;
    QPointF place(const Coordinate& coordinate) const { return place(Direction::of(coordinate)); }

    /// What is shown there; absent beyond the far side of the Earth.
    std::optional<Coordinate> coordinate(const QPointF& place) const;

    /// Whether anything within `reach` radians of there may be seen. The far side of the Earth, which is
    /// drawn out all around, is not.
    bool mayShow(const Direction& direction, double reach) const;

private:
    static constexpr double earthRadiusNM = 3437.75;

    struct Axis {
        double x;
        double y;
        double z;

        double along(const Direction& direction) const
        {
            return x * direction.x + y * direction.y + z * direction.z;
        }
    };

    QRectF m_area;
    double m_scale; ///< Points a radian.
    Axis m_up;
    Axis m_east;
    Axis m_north;
    double m_reach; ///< From the middle to a corner, radians.
};

} // namespace skyvane
