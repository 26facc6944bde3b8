#pragma once

#include "ui/layout/widget_container.h"

#include <string>
#include <vector>

namespace skyvane {

/// A widget as the extension declares it.
struct WidgetInfo {
    std::string kind; ///< Such as "org.skyvane.widgets.radar".
    std::string displayName;
    std::string description;
    std::vector<WidgetFamily> families; ///< Those that this host knows.

    /// The last component of `kind`.
    std::string shortName() const { return kind.substr(kind.rfind('.') + 1); }

    bool operator==(const WidgetInfo&) const = default;
};

} // namespace skyvane
