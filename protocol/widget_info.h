#pragma once

#include "protocol/members.h"
#include "ui/tree/widget_family.h"

#include <string>
#include <vector>

namespace skyvane {

/// A widget as the extension declares it.
struct WidgetInfo {
    std::string kind; ///< Such as "org.skyvane.widgets.radar".
    std::string displayName;
    std::string description;
    std::vector<WidgetFamily> families; ///< Those that the reader knows.

    /// The last component of `kind`.
    std::string shortName() const { return kind.substr(kind.rfind('.') + 1); }

    bool operator==(const WidgetInfo&) const = default;
};

template <>
struct Protocol::Members<WidgetInfo> {
    static constexpr auto list = std::tuple{
        member("kind", &WidgetInfo::kind),
        member("displayName", &WidgetInfo::displayName),
        member("description", &WidgetInfo::description),
        member("families", &WidgetInfo::families),
    };
};

} // namespace skyvane
