#pragma once

namespace skyvane {

/// The sizes that a widget comes in; `WidgetContainer` knows their names and measures.
enum class WidgetFamily { small, medium, large };

} // namespace skyvane
