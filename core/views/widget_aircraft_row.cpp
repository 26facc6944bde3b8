#include "core/views/widget_aircraft_row.h"

#include "core/views/deep_link_url.h"
#include "platform/text/locale.h"

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

constexpr Font glyphFont{.size = 8, .weight = FontWeight::bold};
constexpr Font nameFont{.size = 10, .weight = FontWeight::bold, .design = FontDesign::monospaced};
constexpr Font figureFont{.size = 9, .design = FontDesign::monospaced};

constexpr std::int64_t transitionAltitude = 18000; // Feet; flight levels from there up.

View linked(const Aircraft& aircraft, View row)
{
    const auto target = DeepLinkURL::aircraft(aircraft.hex);
    return link(target ? *target : DeepLinkURL::open(), std::move(row));
}

} // namespace

Styled<Symbol> headingGlyph(const Aircraft& aircraft, const ScopePalette& palette, Font font)
{
    const double rotation = aircraft.track ? *aircraft.track - 90 : 0;
    return symbol("airplane").font(font).rotated(rotation).foreground(aircraft.blipColor(palette));
}

View WidgetAircraftRow::body() const
{
    const auto figure = [&](std::string string) {
        return text(std::move(string)).font(figureFont).foreground(palette.dim());
    };

    return HStack{.spacing = 5}({
        headingGlyph(aircraft, palette, glyphFont),
        text(aircraft.displayName()).font(nameFont).foreground(palette.phosphor).lineLimit(1),
        spacer(4),
        ifPresent(aircraft.distanceText(unit, /*compact=*/true), figure),
        figure(shortAltitude()),
    });
}

std::string WidgetAircraftRow::shortAltitude() const
{
    if (aircraft.isOnGround())
        return "GND";
    const auto feet = aircraft.altitudeFeet();
    if (!feet)
        return "—";
    if (*feet >= transitionAltitude)
        return "FL" + std::to_string(*feet / 100);
    return groupedInteger(*feet) + "ft";
}

std::vector<View> linkedRows(
    const SkyEntry& entry, const ScopePalette& palette, std::size_t limit, bool linksEnabled)
{
    const auto linkedRow = [&](const Aircraft& aircraft) {
        View row = WidgetAircraftRow{.aircraft = aircraft, .unit = entry.unit, .palette = palette}.body();
        return linksEnabled ? linked(aircraft, std::move(row)) : std::move(row);
    };

    std::vector<View> rows;
    const std::size_t count = std::min(limit, entry.aircraft.size());
    rows.reserve(count);
    for (std::size_t index = 0; index < count; ++index) {
        const Aircraft& aircraft = entry.aircraft[index];
        rows.push_back(identified(aircraft.id(), linkedRow(aircraft)));
    }
    return rows;
}

} // namespace skyvane
