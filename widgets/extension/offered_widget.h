#pragma once

#include "protocol/widget_target.h"
#include "widgets/skyvane_widget_bundle.h"

#include <vector>

namespace skyvane::Extension {

/// One of the widgets on offer, in a family that it supports.
struct OfferedWidget {
    const Widget* widget;
    WidgetFamily family;

    /// Throws `JSON::DecodingError` when there is no such widget, or none of this family.
    static OfferedWidget find(const WidgetTarget& target, const std::vector<Widget>& offered);
};

} // namespace skyvane::Extension
