#pragma once

namespace skyvane {

/// The sizes that a widget comes in.
enum class WidgetFamily { small, medium, large };

} // namespace skyvane
