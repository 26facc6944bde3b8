#pragma once

#include "ui/layout/display_list.h"
#include "ui/tree/view.h"

#include <array>
#include <optional>
#include <string_view>

namespace skyvane {

/// The sizes of window that a host offers a widget.
enum class ContainerFamily { small, medium, large };

/// The box that a widget's content stands in.
namespace WidgetContainer {

inline constexpr std::array families{ContainerFamily::small, ContainerFamily::medium, ContainerFamily::large};

/// Between the content and each side of the widget, points.
inline constexpr double contentMargin = 16;

/// Width and height of the whole widget, points.
Size size(ContainerFamily family);

/// "small", "medium" or "large".
std::string_view name(ContainerFamily family);
std::optional<ContainerFamily> named(std::string_view name);

/// The content laid out inside the margins, as a list that covers the whole widget.
DisplayList layout(const View& content, ContainerFamily family, const TextMeasurer& measurer);

} // namespace WidgetContainer

} // namespace skyvane
