#pragma once

#include "core/views/sky_entry.h"
#include "core/views/widget_family.h"
#include "ui/tree/view.h"

#include <optional>

namespace skyvane {

/// The radar widget: the scope with captions in its corners, or, medium, beside a short list.
struct RadarWidgetView {
    const SkyEntry& entry; ///< Only looked at, for as long as the view.
    std::optional<WidgetFamily> forcedFamily{}; ///< Instead of the one that it is shown in.
    bool linksEnabled = true;

    /// `family`: the one that it is shown in.
    View body(WidgetFamily family) const;

private:
    View captionedScope(const ScopePalette& palette) const;
    View scopeBesideList(const ScopePalette& palette) const;
    View list(const ScopePalette& palette) const;
};

} // namespace skyvane
