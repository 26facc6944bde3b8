#pragma once

#include "host/placing/placing.h"

#include <functional>

class QObject;

namespace skyvane {

class DesktopWay;

/// The screens there are now, each with its room for widgets on this desktop.
namespace Screens {

/// All screens, the primary one first.
std::vector<ScreenArea> all(const DesktopWay& way);

/// Calls back when one comes, goes or changes its area, for as long as the context lives.
void onChange(QObject& context, std::function<void()> changed);

} // namespace Screens

} // namespace skyvane
