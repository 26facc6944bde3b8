#include "core/views/widget_aircraft_row.h"

#include "core/views/heading_glyph.h"
#include "platform/text/locale.h"
#include "ui/tree/build.h"

#include <utility>

namespace skyvane {

namespace {

constexpr Font glyphFont{.size = 8, .weight = FontWeight::bold};
constexpr Font nameFont{.size = 10, .weight = FontWeight::bold, .design = FontDesign::monospaced};
constexpr Font figureFont{.size = 9, .design = FontDesign::monospaced};

constexpr std::int64_t transitionAltitude = 18000; // Feet; flight levels from there up.

} // namespace

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

} // namespace skyvane
