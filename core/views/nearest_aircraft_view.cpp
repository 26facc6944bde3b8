#include "core/views/nearest_aircraft_view.h"

#include "core/views/setup_prompt.h"
#include "core/views/widget_aircraft_row.h"
#include "platform/text/locale.h"
#include "platform/text/localized.h"
#include "ui/tree/build.h"

#include <string>

namespace skyvane {

namespace {

constexpr Font headerFont{.size = 9, .weight = FontWeight::semibold, .design = FontDesign::monospaced};
constexpr Font glyphFont{.size = 11, .weight = FontWeight::bold};
constexpr Font nameFont{.size = 19, .weight = FontWeight::bold, .design = FontDesign::monospaced};
constexpr Font identityFont{.size = 10, .design = FontDesign::monospaced};
constexpr Font distanceFont{.size = 10, .weight = FontWeight::semibold, .design = FontDesign::monospaced};
constexpr Font footerFont{.size = 8, .design = FontDesign::monospaced};

constexpr const char* separator = " · ";

/// Type and registration, those of them that have any text.
std::string identity(const Aircraft& aircraft)
{
    const std::string type = aircraft.typeCode.value_or("");
    const std::string registration = aircraft.registration.value_or("");
    return type + (type.empty() || registration.empty() ? "" : separator) + registration;
}

} // namespace

View NearestAircraftView::body() const
{
    const ScopePalette palette = entry.palette();
    if (entry.needsSetup())
        return SetupPrompt{.palette = palette}.body();
    if (entry.aircraft.empty())
        return quietSkies(palette);
    return detail(entry.aircraft.front(), palette);
}

View NearestAircraftView::quietSkies(const ScopePalette& palette) const
{
    const Color dim = palette.dim();
    return VStack{.spacing = 4}({
        symbol("airplane.departure").font({.size = TextStyle::title3}).foreground(dim),
        text(localized("Quiet skies")).font({.size = TextStyle::caption}).foreground(dim),
        text(localized("as of ") + shortTime(entry.date)).font(footerFont).foreground(dim),
    });
}

View NearestAircraftView::detail(const Aircraft& aircraft, const ScopePalette& palette) const
{
    const auto distanceLine = [&](const std::string& distance) {
        return text(distance + separator + aircraft.altitudeText())
            .font(distanceFont)
            .foreground(palette.phosphor.withOpacity(0.85))
            .lineLimit(1)
            .minimumScale(0.7);
    };

    const View header = HStack{}({
        text(localized("NEAREST")).font(headerFont).tracking(1.5).foreground(palette.dim()),
        spacer(),
        headingGlyph(aircraft, palette, glyphFont),
    });
    return VStack{.spacing = 2, .align = HorizontalAlignment::leading}({
        header,
        text(aircraft.displayName())
            .font(nameFont)
            .foreground(palette.phosphor)
            .lineLimit(1)
            .minimumScale(0.6),
        text(identity(aircraft)).font(identityFont).foreground(palette.dim()).lineLimit(1),
        ifPresent(aircraft.distanceText(entry.unit, /*compact=*/false), distanceLine),
        text(std::to_string(entry.aircraft.size()) + localized(" in range · ") + shortTime(entry.date))
            .font(footerFont)
            .foreground(palette.dim()),
    });
}

} // namespace skyvane
