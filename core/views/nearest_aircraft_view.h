#pragma once

#include "core/views/sky_entry.h"
#include "ui/tree/view.h"

namespace skyvane {

/// The nearest-aircraft widget: the entry's first aircraft in detail, a quiet sky, or the way to set a home.
struct NearestAircraftView {
    const SkyEntry& entry; ///< Only looked at, for as long as the view.

    View body() const;

private:
    View quietSkies(const ScopePalette& palette) const;
    View detail(const Aircraft& aircraft, const ScopePalette& palette) const;
};

} // namespace skyvane
