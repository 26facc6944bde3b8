#pragma once

#include "host/placing/placing.h"
#include "protocol/widget_target.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// A widget that stands on the desktop.
struct PlacedWidget {
    int id; ///< At least 1, its own for as long as it stands.
    WidgetTarget target;
    Placement placement;

    bool operator==(const PlacedWidget&) const = default;
};

/// The text of the file that remembers them.
namespace PlacedWidgets {

std::string encoded(const std::vector<PlacedWidget>& widgets);

/// Absent when the text is of another shape or version, or two widgets have one id.
std::optional<std::vector<PlacedWidget>> decoded(std::string_view text);

} // namespace PlacedWidgets

} // namespace skyvane
