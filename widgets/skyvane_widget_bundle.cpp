#include "widgets/skyvane_widget_bundle.h"

#include "core/views/deep_link_url.h"
#include "core/views/nearest_aircraft_view.h"
#include "core/views/radar_widget_view.h"
#include "core/views/sky_board_view.h"
#include "platform/text/localized.h"
#include "widgets/deep_link.h"

#include <utility>

namespace skyvane {

namespace {

WidgetContent inContainer(View view, std::optional<URL> url, const SkyEntry& entry)
{
    return {.view = std::move(view),
        .widgetURL = std::move(url),
        .containerBackground = entry.palette().background};
}

} // namespace

Widget NearestAircraftWidget::body() const
{
    return {
        .kind = "org.skyvane.widgets.nearest",
        .displayName = localized("Nearest Aircraft"),
        .description = localized("The closest aircraft to home right now."),
        .supportedFamilies = {WidgetFamily::small},
        .content =
            [](const SkyEntry& entry, WidgetFamily) {
                return inContainer(NearestAircraftView{.entry = entry}.body(), deepLink(entry), entry);
            },
    };
}

Widget RadarWidget::body() const
{
    return {
        .kind = "org.skyvane.widgets.radar",
        .displayName = localized("Sky Radar"),
        .description = localized("A radar scope of aircraft around your home."),
        .supportedFamilies = {WidgetFamily::small, WidgetFamily::medium},
        .content =
            [](const SkyEntry& entry, WidgetFamily family) {
                return inContainer(RadarWidgetView{.entry = entry}.body(family), DeepLinkURL::open(), entry);
            },
    };
}

Widget SkyBoardWidget::body() const
{
    return {
        .kind = "org.skyvane.widgets.skyboard",
        .displayName = localized("Sky Board"),
        .description = localized("Radar scope plus the nearest aircraft, at a glance."),
        .supportedFamilies = {WidgetFamily::large},
        .content =
            [](const SkyEntry& entry, WidgetFamily) {
                return inContainer(SkyBoardView{.entry = entry}.body(), DeepLinkURL::open(), entry);
            },
    };
}

std::vector<Widget> SkyvaneWidgetBundle::body() const
{
    return {
        NearestAircraftWidget{}.body(),
        RadarWidget{}.body(),
        SkyBoardWidget{}.body(),
    };
}

} // namespace skyvane
