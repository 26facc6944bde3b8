#pragma once

class QPoint;
class QWidget;

/// The desktop layer of those Wayland compositors that have one, in builds that know how to use it.
namespace skyvane::LayerShell {

/// Whether this build and the compositor both have it. May be asked before there is a QGuiApplication.
bool isOffered();

/// Puts a window that was never shown between the wallpaper and all ordinary windows.
void adopt(QWidget& window);

/// In the coordinates of the screens, to whichever of them holds the window's middle.
void move(QWidget& window, const QPoint& place);

} // namespace skyvane::LayerShell
