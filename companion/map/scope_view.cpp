#include "companion/map/scope_view.h"

#include "companion/map/map_scene.h"
#include "paint/to_qt.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <utility>

namespace skyvane {

namespace {

/// The largest circle; null without any.
const Ellipse* outerRing(const DisplayList& list)
{
    const Ellipse* outer = nullptr;
    for (const DisplayItem& item : list.items) {
        const auto* ellipse = std::get_if<Ellipse>(&item);
        if (ellipse != nullptr && (outer == nullptr || ellipse->diameter > outer->diameter))
            outer = ellipse;
    }
    return outer;
}

/// Fainter than the aircraft, which fly above it.
MapInk inkOf(const ScopePalette& palette)
{
    const auto faint = [&](double opacity) { return toQt(palette.phosphor.withOpacity(opacity)); };
    return {.coast = faint(0.5),
        .border = faint(0.3),
        .city = faint(0.6),
        .airport = faint(0.7),
        .home = faint(1)};
}

} // namespace

ScopeView::ScopeView(const FontMeasurer& fonts, Pressed pressed) : DisplayListView(fonts, std::move(pressed))
{
    connect(&m_loader, &MapLoader::loaded, this, [this] { mapChanged(); });
}

void ScopeView::showScope(const RadarView& scope, const QString& state)
{
    m_home = scope.entry.home;
    m_radiusNM = scope.entry.radiusNM;
    m_palette = scope.entry.palette();
    showCard(scope.body(), m_palette.background, state);
    mapChanged();
}

void ScopeView::setMapShown(bool isShown)
{
    if (std::exchange(m_isMapShown, isShown) != isShown)
        mapChanged();
}

/// To the scale of the aircraft, whose farthest stand just inside the outer ring.
void ScopeView::paintUnder(QPainter& painter, const DisplayList& list)
{
    constexpr double farthestAircraft = 0.94; // Of the ring.
    const Ellipse* ring = outerRing(list);
    if (!m_isMapShown || !m_home || ring == nullptr || !(m_radiusNM > 0) || !std::isfinite(m_radiusNM))
        return;
    const MapData* earth = m_loader.data();
    if (earth == nullptr)
        return;
    const double radius = ring->diameter / 2;
    const QRectF area{ring->center.x - radius, ring->center.y - radius, ring->diameter, ring->diameter};
    const Coordinate home{.latitude = m_home->latitude, .longitude = m_home->longitude};
    const MapFrame frame{home, radius * farthestAircraft / m_radiusNM, area};
    painter.save();
    QPainterPath inside;
    inside.addEllipse(area);
    painter.setClipPath(inside);
    QFont font = painter.font();
    font.setPixelSize(9);
    painter.setFont(font);
    auto scene = MapScene::of(*earth, frame, {.home = home, .radiusNM = m_radiusNM}, QFontMetricsF{font},
        {.cities = 10, .airports = 12});
    scene.ring.clear(); // The scope has its own, and its own home.
    scene.home.reset();
    paintMap(scene, inkOf(m_palette), painter);
    painter.restore();
}

} // namespace skyvane
