#pragma once

#include "protocol/widget_entry.h"

#include <string>
#include <vector>

namespace skyvane {

/// The nearest aircraft in words, as the widgets show it: in the user's language and units, and safe to hand
/// to a status bar, which takes some characters for orders. What no widget shows is empty.
struct NearestWords {
    enum class Sky { aircraft, quiet, noHome };

    Sky sky;
    std::vector<std::string> lines{}; ///< Those of the widget, from top to bottom.
    std::string callsign{};
    std::string identity{}; ///< Type and registration, those that are known.
    std::string type{}; ///< ICAO designator.
    std::string registration{};
    std::string distance{};
    std::string altitude{};
    std::string direction{}; ///< Where it is from home: "NE".
    std::string arrow{}; ///< Where its nose points on a map.
    std::string count{}; ///< How many aircraft are in range.
    std::string time{}; ///< Of the sky that this is.

    /// From the nearest aircraft's widget and the sky board, large, of one moment. Throws `ExtensionError`
    /// for views that are not what these show.
    static NearestWords read(const WidgetEntry& nearest, const WidgetEntry& board);

    bool operator==(const NearestWords&) const = default;
};

} // namespace skyvane
