#include "core/views/sky_board_view.h"

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

constexpr Font titleFont{.size = 11, .weight = FontWeight::bold, .design = FontDesign::monospaced};
constexpr Font radiusFont{.size = 9, .design = FontDesign::monospaced};

constexpr double unbounded = std::numeric_limits<double>::infinity();
constexpr std::size_t listedAircraft = 5;

} // namespace

View SkyBoardView::body() const
{
    const ScopePalette palette = entry.palette();
    if (entry.needsSetup())
        return SetupPrompt{.palette = palette}.body();

    const auto quietSkies = [&] {
        return text(localized("Quiet skies")).font({.size = TextStyle::caption}).foreground(palette.dim());
    };
    const View titleBar = HStack{}({
        text(localized("SKYVANE")).font(titleFont).tracking(2).foreground(palette.phosphor),
        spacer(),
        text(std::to_string(entry.wholeRadiusNM()) + localized(" NM · ") + shortTime(entry.date))
            .font(radiusFont)
            .foreground(palette.dim()),
    });
    const View list = VStack{.spacing = 6}({
        when(entry.aircraft.empty(), quietSkies),
        linkedRows(entry, palette, listedAircraft, linksEnabled),
    });
    return VStack{.spacing = 10}({
        titleBar,
        Frame{.maxHeight = unbounded}(RadarView{.entry = entry}.body()),
        list,
    });
}

} // namespace skyvane
