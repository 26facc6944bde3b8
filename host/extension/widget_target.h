#pragma once

#include "ui/layout/widget_container.h"

#include <string>

namespace skyvane {

/// A widget of a size.
struct WidgetTarget {
    std::string kind;
    WidgetFamily family;

    bool operator==(const WidgetTarget&) const = default;
};

} // namespace skyvane
