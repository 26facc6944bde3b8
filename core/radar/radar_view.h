#pragma once

#include "core/views/sky_entry.h"
#include "ui/tree/view.h"

namespace skyvane {

/// The round scope: range rings, a cross, the home dot and one aeroplane for each of the first `maxBlips`
/// aircraft.
struct RadarView {
    const SkyEntry& entry; ///< Only looked at, for as long as the view.
    int maxBlips = 40;

    View body() const;
};

} // namespace skyvane
