#pragma once

#include "protocol/members.h"
#include "ui/tree/widget_family.h"

#include <string>

namespace skyvane {

/// A widget of a size.
struct WidgetTarget {
    std::string kind;
    WidgetFamily family;

    bool operator==(const WidgetTarget&) const = default;
};

template <>
struct Protocol::Members<WidgetTarget> {
    static constexpr auto list = std::tuple{
        member("kind", &WidgetTarget::kind),
        member("family", &WidgetTarget::family),
    };
};

} // namespace skyvane
