#pragma once

#include "platform/clock.h"
#include "platform/net/url.h"
#include "protocol/members.h"
#include "ui/tree/view.h"

#include <optional>

namespace skyvane {

/// What a widget shows from a moment on.
struct WidgetEntry {
    Date date;
    bool isSample;
    View view;
    Color background; ///< Of the whole widget, margins included.
    std::optional<URL> url; ///< Where a tap beside every link goes; absent, too, for what is no URL.

    bool operator==(const WidgetEntry&) const = default;
};

template <>
struct Protocol::Members<WidgetEntry> {
    static constexpr auto list = std::tuple{
        member("date", &WidgetEntry::date),
        member("isSample", &WidgetEntry::isSample),
        member("view", &WidgetEntry::view),
        member("background", &WidgetEntry::background),
        nullable("url", &WidgetEntry::url),
    };
};

} // namespace skyvane
