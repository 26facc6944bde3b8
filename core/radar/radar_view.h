#pragma once

#include "core/radar/radar_geometry.h"
#include "core/views/sky_entry.h"
#include "ui/tree/canvas.h"
#include "ui/tree/view.h"

namespace skyvane {

/// Where the scope shows this: home is in the middle of its square, north is up, east is right. What is
/// pinned to the outer ring stays just inside it. Not finite for a bearing beyond all arithmetic.
UnitPoint placeOnScope(const RadarGeometry::Polar& polar);

/// The round scope: range rings, a cross, the home dot and one aeroplane for each of the first `maxBlips`
/// aircraft.
struct RadarView {
    const SkyEntry& entry; ///< Only looked at, for as long as the view.
    int maxBlips = 40;

    View body() const;
};

} // namespace skyvane
