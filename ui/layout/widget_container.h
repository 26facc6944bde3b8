#pragma once

#include "platform/text/text_direction.h"
#include "ui/layout/display_list.h"
#include "ui/tree/view.h"
#include "ui/tree/widget_family.h"

#include <array>
#include <optional>
#include <string_view>

namespace skyvane {

/// The box that a widget's content stands in.
namespace WidgetContainer {

inline constexpr std::array families{WidgetFamily::small, WidgetFamily::medium, WidgetFamily::large};

/// Between the content and each side of the widget, points.
inline constexpr double contentMargin = 16;

/// Width and height of the whole widget, points.
Size size(WidgetFamily family);

/// "small", "medium" or "large".
std::string_view name(WidgetFamily family);
std::optional<WidgetFamily> named(std::string_view name);

/// The content laid out inside the margins, as a list that covers the whole widget of this size. `direction`
/// is that of the language of the content's texts.
DisplayList layout(const View& content, const Size& whole, const TextMeasurer& measurer,
    TextDirection direction = TextDirection::leftToRight);
DisplayList layout(const View& content, WidgetFamily family, const TextMeasurer& measurer,
    TextDirection direction = TextDirection::leftToRight);

} // namespace WidgetContainer

} // namespace skyvane
