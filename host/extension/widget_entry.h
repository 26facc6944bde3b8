#pragma once

#include "platform/clock.h"
#include "platform/net/url.h"
#include "ui/tree/view.h"

#include <optional>
#include <vector>

namespace skyvane {

/// What a widget shows from a moment on.
struct WidgetEntry {
    Date date;
    bool isSample;
    View view;
    Color background; ///< Of the whole widget, margins included.
    std::optional<URL> url; ///< Where a tap beside every link goes.

    bool operator==(const WidgetEntry&) const = default;
};

struct WidgetTimeline {
    std::vector<WidgetEntry> entries;
    Date reloadDate; ///< When to ask again.

    bool operator==(const WidgetTimeline&) const = default;
};

} // namespace skyvane
