#pragma once

#include <xcb/xcb.h>

/// The window manager of the X server, as far as it follows the Extended Window Manager Hints.
namespace skyvane::WindowManager {

/// Whether it can show the desktop, which takes away all windows but docks, and keep windows below others.
/// One that has not said yet what it can, as at the beginning of a session, is taken for such a one.
bool showsDesktop(xcb_connection_t* connection);

/// Whether it does so now.
bool isDesktopShown(xcb_connection_t* connection);

/// Whether any window has the keyboard.
bool hasActiveWindow(xcb_connection_t* connection);

/// Puts a window that was mapped before under all others of its layer.
void lower(xcb_connection_t* connection, xcb_window_t window);

/// Gives it the keyboard.
void activate(xcb_connection_t* connection, xcb_window_t window);

} // namespace skyvane::WindowManager
