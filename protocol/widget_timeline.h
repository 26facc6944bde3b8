#pragma once

#include "protocol/widget_entry.h"

#include <vector>

namespace skyvane {

/// The only policy of reloading: after a date.
struct ReloadAfter {
    Date date;

    bool operator==(const ReloadAfter&) const = default;
};

/// What a widget shows from one moment to the next, and when to ask again.
struct WidgetTimeline {
    std::vector<WidgetEntry> entries;
    ReloadAfter reload;

    bool operator==(const WidgetTimeline&) const = default;
};

template <>
struct Protocol::Members<WidgetTimeline> {
    static constexpr auto list = std::tuple{
        member("entries", &WidgetTimeline::entries),
        member("reload", &WidgetTimeline::reload),
    };
};

} // namespace skyvane
