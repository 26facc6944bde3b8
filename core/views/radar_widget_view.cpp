#include "core/views/radar_widget_view.h"

#include "core/radar/radar_view.h"
#include "core/views/setup_prompt.h"
#include "core/views/widget_aircraft_row.h"
#include "platform/text/locale.h"
#include "platform/text/localized.h"
#include "ui/tree/build.h"

#include <limits>
#include <string>

namespace skyvane {

namespace {

constexpr Font captionFont{.size = 8, .design = FontDesign::monospaced};
constexpr Font quietFont{.size = 8, .weight = FontWeight::semibold, .design = FontDesign::monospaced};
constexpr Font countFont{.size = 10, .weight = FontWeight::bold, .design = FontDesign::monospaced};
constexpr Font listHeaderFont{.size = 9, .weight = FontWeight::semibold, .design = FontDesign::monospaced};

constexpr double unbounded = std::numeric_limits<double>::infinity();
constexpr std::size_t listedAircraft = 3;

std::int64_t count(const SkyEntry& entry)
{
    return static_cast<std::int64_t>(entry.aircraft.size());
}

} // namespace

View RadarWidgetView::body(WidgetFamily family) const
{
    const ScopePalette palette = entry.palette();
    if (entry.needsSetup())
        return SetupPrompt{.palette = palette}.body();
    if (forcedFamily.value_or(family) == WidgetFamily::medium)
        return scopeBesideList(palette);
    return captionedScope(palette);
}

View RadarWidgetView::captionedScope(const ScopePalette& palette) const
{
    const auto caption = [&](std::string string) {
        return text(std::move(string)).font(captionFont).foreground(palette.dim());
    };
    const auto quietSky = [&] {
        return text(localized("QUIET SKY")).font(quietFont).tracking(1.5).foreground(palette.dim());
    };

    return overlay(RadarView{.entry = entry}.body(),
        {
            layer(Alignment::topLeading, caption(localized("%lldnm", {entry.wholeRadiusNM()}))),
            layer(Alignment::top, when(entry.aircraft.empty(), quietSky)),
            layer(Alignment::bottomLeading,
                text(std::to_string(count(entry))).font(countFont).foreground(palette.phosphor)),
            layer(Alignment::bottomTrailing, caption(shortTime(entry.date))),
        });
}

View RadarWidgetView::scopeBesideList(const ScopePalette& palette) const
{
    return HStack{.spacing = 12}({
        RadarView{.entry = entry}.body(),
        Frame{.maxWidth = unbounded, .align = Alignment::leading}(list(palette)),
    });
}

View RadarWidgetView::list(const ScopePalette& palette) const
{
    return VStack{.spacing = 5, .align = HorizontalAlignment::leading}({
        text(localized("%lld AIRCRAFT · %lld NM", {count(entry), entry.wholeRadiusNM()}))
            .font(listHeaderFont)
            .tracking(1)
            .foreground(palette.dim()),
        linkedRows(entry, palette, listedAircraft, linksEnabled),
        spacer(),
        text(localized("as of ") + shortTime(entry.date)).font(captionFont).foreground(palette.dim()),
    });
}

} // namespace skyvane
