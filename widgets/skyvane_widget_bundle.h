#pragma once

#include "core/views/sky_entry.h"
#include "core/views/widget_family.h"
#include "platform/net/url.h"
#include "ui/tree/view.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// One widget drawn from one entry.
struct WidgetContent {
    View view;
    std::optional<URL> widgetURL; ///< Where a tap beside any link leads.
    Color containerBackground;

    bool operator==(const WidgetContent&) const = default;
};

/// A widget as its host sees it.
struct Widget {
    std::string kind;
    std::string displayName;
    std::string description;
    std::vector<WidgetFamily> supportedFamilies;
    std::function<WidgetContent(const SkyEntry&, WidgetFamily)> content;
};

/// The aircraft that is nearest to home, in detail.
struct NearestAircraftWidget {
    Widget body() const;
};

/// The scope, alone or beside a short list.
struct RadarWidget {
    Widget body() const;
};

/// The scope above the nearest aircraft.
struct SkyBoardWidget {
    Widget body() const;
};

/// Everything that the extension offers, in the gallery's order: the one list of widgets.
struct SkyvaneWidgetBundle {
    std::vector<Widget> body() const;
};

} // namespace skyvane
