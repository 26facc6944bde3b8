#pragma once

#include "core/config/scope_palette.h"
#include "core/model/aircraft.h"
#include "core/model/distance_unit.h"
#include "core/views/sky_entry.h"
#include "ui/tree/build.h"
#include "ui/tree/view.h"

#include <cstddef>
#include <string>
#include <vector>

namespace skyvane {

/// The aeroplane that stands for an aircraft beside texts: nose along its track, else to the right, in its
/// blip's colour.
Styled<Symbol> headingGlyph(const Aircraft& aircraft, const ScopePalette& palette, Font font);

/// One aircraft in one line: heading glyph, name, distance and short altitude.
struct WidgetAircraftRow {
    Aircraft aircraft;
    std::string unit = DistanceUnit::standard; ///< As `Aircraft::distanceText` takes it.
    ScopePalette palette = ScopePalette::standard();

    View body() const;

private:
    /// "GND", "FL350" from 18,000 feet up, "12,500ft" below, or "—".
    std::string shortAltitude() const;
};

/// The rows of the entry's first `limit` aircraft, each identified by its aircraft and, when linked, opening
/// it in the companion. An identity that forms no URL opens the sky list.
std::vector<View> linkedRows(
    const SkyEntry& entry, const ScopePalette& palette, std::size_t limit, bool linksEnabled);

} // namespace skyvane
