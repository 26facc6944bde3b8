#pragma once

#include "core/config/scope_palette.h"
#include "core/model/aircraft.h"
#include "ui/tree/view.h"

#include <string>

namespace skyvane {

/// One aircraft in one line: heading glyph, name, distance and short altitude.
struct WidgetAircraftRow {
    Aircraft aircraft;
    std::string unit = "mi"; ///< As `Aircraft::distanceText` takes it.
    ScopePalette palette = ScopePalette::standard();

    View body() const;

private:
    /// "GND", "FL350" from 18,000 feet up, "12,500ft" below, or "—".
    std::string shortAltitude() const;
};

} // namespace skyvane
