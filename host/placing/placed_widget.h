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

/// The widgets on the desktop, as they are remembered.
struct Arrangement {
    std::vector<PlacedWidget> widgets{};
    bool isLocked = false; ///< No widget can be dragged.

    bool operator==(const Arrangement&) const = default;

    /// The text of the file that remembers it.
    std::string encoded() const;

    /// Absent when the text is of another shape or version, or two widgets have one id.
    static std::optional<Arrangement> decoded(std::string_view text);
};

} // namespace skyvane
