#pragma once

#include "core/views/sky_entry.h"
#include "ui/tree/view.h"

namespace skyvane {

/// The sky board widget: a title bar, the scope and the five nearest aircraft.
struct SkyBoardView {
    const SkyEntry& entry; ///< Only looked at, for as long as the view.
    bool linksEnabled = true;

    View body() const;
};

} // namespace skyvane
