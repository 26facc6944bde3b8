#include "companion/sky/trail_on_scope.h"

#include "core/radar/radar_view.h"

#include <QLineF>

#include <chrono>
#include <cmath>

namespace skyvane {

TrailOnScope::TrailOnScope(const SkyEntry& sky, const QRectF& square)
    : m_geometry{.radiusNM = sky.radiusNM, .home = sky.home}, m_square(square)
{
}

std::vector<QPolygonF> TrailOnScope::pieces(std::span<const Trails::Sighting> trail, const QPointF& end) const
{
    constexpr std::chrono::minutes longestGap{5};
    constexpr double leastStep = 1.5;
    std::vector<QPolygonF> pieces(1);
    std::optional<Date> before;
    for (const Trails::Sighting& sighting : trail) {
        const auto place = onScope(sighting.place);
        if (!place || (before && sighting.at - *before > longestGap))
            pieces.emplace_back();
        before = sighting.at;
        if (!place)
            continue;
        if (pieces.back().empty() || QLineF{pieces.back().last(), *place}.length() >= leastStep)
            pieces.back() << *place;
    }
    pieces.back() << end;
    return pieces;
}

std::optional<QPointF> TrailOnScope::onScope(const Coordinate& place) const
{
    const auto polar = m_geometry.polar({.hex = {}, .lat = place.latitude, .lon = place.longitude});
    if (!polar || !(polar->fraction < 1)) // Beyond the outer ring it would be pinned to it.
        return std::nullopt;
    const UnitPoint point = placeOnScope(*polar);
    if (!std::isfinite(point.x) || !std::isfinite(point.y))
        return std::nullopt;
    return m_square.topLeft() + QPointF{point.x * m_square.width(), point.y * m_square.height()};
}

} // namespace skyvane
