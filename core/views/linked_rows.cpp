#include "core/views/linked_rows.h"

#include "core/views/deep_link_url.h"
#include "core/views/widget_aircraft_row.h"
#include "ui/tree/build.h"

#include <algorithm>

namespace skyvane {

namespace {

View linkedRow(const Aircraft& aircraft, const SkyEntry& entry, bool linksEnabled)
{
    View row = WidgetAircraftRow{.aircraft = aircraft, .unit = entry.unit, .palette = entry.palette()}.body();
    if (!linksEnabled)
        return row;
    const auto target = DeepLinkURL::aircraft(aircraft.hex);
    return link(target ? *target : DeepLinkURL::open(), std::move(row));
}

} // namespace

std::vector<View> linkedRows(const SkyEntry& entry, std::size_t limit, bool linksEnabled)
{
    std::vector<View> rows;
    const std::size_t count = std::min(limit, entry.aircraft.size());
    rows.reserve(count);
    for (std::size_t index = 0; index < count; ++index) {
        const Aircraft& aircraft = entry.aircraft[index];
        rows.push_back(identified(aircraft.id(), linkedRow(aircraft, entry, linksEnabled)));
    }
    return rows;
}

} // namespace skyvane
