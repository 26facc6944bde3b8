#pragma once

#include <memory>

namespace skyvane {
class DesktopWay;
}

/// The desktop layer of those Wayland compositors that have one, in builds that know how to use it.
namespace skyvane::LayerShell {

/// Whether this build knows how to use it.
bool isBuiltIn();

/// Whether this build and the compositor both have it. May be asked before there is a QGuiApplication.
bool isOffered();

/// Null where it is not offered.
std::unique_ptr<DesktopWay> way();

} // namespace skyvane::LayerShell
