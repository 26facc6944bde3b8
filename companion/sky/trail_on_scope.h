#pragma once

#include "companion/sky/trails.h"
#include "core/radar/radar_geometry.h"
#include "core/views/sky_entry.h"

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <optional>
#include <span>
#include <vector>

namespace skyvane {

/// A trail as it is drawn on a scope: in pieces, where nobody looked for a while or it led beyond the outer
/// ring, and without what is too near to be seen.
class TrailOnScope {
public:
    /// `square`: that around the scope's outer ring.
    TrailOnScope(const SkyEntry& sky, const QRectF& square);

    /// `end`: where the aircraft is now.
    std::vector<QPolygonF> pieces(std::span<const Trails::Sighting> trail, const QPointF& end) const;

private:
    /// Absent beyond the outer ring.
    std::optional<QPointF> onScope(const Coordinate& place) const;

    RadarGeometry m_geometry;
    QRectF m_square;
};

} // namespace skyvane
