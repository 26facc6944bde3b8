#pragma once

#include "host/placing/placing.h"

#include <functional>
#include <optional>

class QObject;

/// The screens there are now.
namespace skyvane::Screens {

/// All screens, the primary one first.
std::vector<ScreenArea> all();

/// The primary screen; absent when there is none.
std::optional<ScreenArea> primary();

/// Calls back when one comes, goes or changes its area, for as long as the context lives.
void onChange(QObject& context, std::function<void()> changed);

} // namespace skyvane::Screens
