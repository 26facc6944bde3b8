#include "core/radar/radar_view.h"

#include "core/config/scope_palette.h"
#include "ui/tree/build.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>
#include <vector>

namespace skyvane {

namespace {

constexpr UnitPoint center{0.5, 0.5};

CanvasItem ring(double fraction, Color color)
{
    return CanvasCircle{
        .center = center,
        .diameter = FractionOfWidth{fraction},
        .paint = Stroke{.color = color, .width = 1},
    };
}

CanvasItem line(UnitPoint from, UnitPoint to, Color color)
{
    return CanvasLine{.from = from, .to = to, .stroke = {.color = color, .width = 0.5}};
}

/// Absent for a bearing beyond all arithmetic.
std::optional<CanvasItem> blip(
    const Aircraft& aircraft, const RadarGeometry::Polar& polar, const ScopePalette& palette)
{
    const UnitPoint place = placeOnScope(polar);
    if (!std::isfinite(place.x) || !std::isfinite(place.y))
        return std::nullopt;
    return CanvasSymbol{
        .center = place,
        .name = "airplane",
        .font = {.size = 7, .weight = FontWeight::bold},
        .color = aircraft.blipColor(palette),
        .rotation = aircraft.track.value_or(polar.bearingDeg) - 90,
        .id = nodeID(aircraft.id()),
    };
}

} // namespace

UnitPoint placeOnScope(const RadarGeometry::Polar& polar)
{
    constexpr double inset = 0.94;
    const double radius = 0.5 * polar.fraction * inset;
    const double bearing = polar.bearingDeg * std::numbers::pi / 180;
    return {.x = center.x + radius * std::sin(bearing), .y = center.y - radius * std::cos(bearing)};
}

View RadarView::body() const
{
    const ScopePalette palette = entry.palette();
    const RadarGeometry geometry{.radiusNM = entry.radiusNM, .home = entry.home};

    std::vector<CanvasItem> items{
        ring(1.0 / 3, palette.faint()),
        ring(2.0 / 3, palette.faint()),
        ring(1, palette.faint()),
        line({0, 0.5}, {1, 0.5}, palette.faint()),
        line({0.5, 0}, {0.5, 1}, palette.faint()),
        CanvasCircle{.center = center, .diameter = Points{5}, .paint = palette.phosphor},
    };
    const auto considered = std::min(static_cast<std::size_t>(std::max(maxBlips, 0)), entry.aircraft.size());
    for (std::size_t index = 0; index < considered; ++index) {
        const Aircraft& aircraft = entry.aircraft[index];
        const auto polar = geometry.polar(aircraft);
        if (auto item = polar ? blip(aircraft, *polar, palette) : std::nullopt)
            items.push_back(*std::move(item));
    }
    return canvas(1, std::move(items));
}

} // namespace skyvane
