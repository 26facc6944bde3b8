#include "host/session/window_manager.h"

#include "desk/x11.h"

#include <algorithm>
#include <vector>

namespace skyvane::WindowManager {

namespace {

/// The asker is a tool of the desktop. From an application KWin takes the one wish as concerning its own
/// windows only and the other, for a dock, as an intrusion.
constexpr std::uint32_t fromPager = 2;

} // namespace

bool showsDesktop(xcb_connection_t* connection)
{
    const auto [supported, showing, below]
        = X11::atoms<3>(connection, {"_NET_SUPPORTED", "_NET_SHOWING_DESKTOP", "_NET_WM_STATE_BELOW"});
    const auto atoms = X11::words(connection, X11::root(connection), supported, XCB_ATOM_ATOM);
    const auto isSupported = [&](xcb_atom_t atom) { return std::ranges::find(atoms, atom) != atoms.end(); };
    return atoms.empty() || (isSupported(showing) && isSupported(below));
}

bool isDesktopShown(xcb_connection_t* connection)
{
    static const auto showing = X11::atoms<1>(connection, {"_NET_SHOWING_DESKTOP"}).front();
    return X11::words(connection, X11::root(connection), showing, XCB_ATOM_CARDINAL)
        == std::vector<std::uint32_t>{1};
}

bool hasActiveWindow(xcb_connection_t* connection)
{
    static const auto active = X11::atoms<1>(connection, {"_NET_ACTIVE_WINDOW"}).front();
    const auto window = X11::words(connection, X11::root(connection), active, XCB_ATOM_WINDOW);
    return !window.empty() && window.front() != XCB_WINDOW_NONE;
}

void lower(xcb_connection_t* connection, xcb_window_t window)
{
    static const auto restack = X11::atoms<1>(connection, {"_NET_RESTACK_WINDOW"}).front();
    X11::tellWindowManager(connection, window, restack, {fromPager, XCB_WINDOW_NONE, XCB_STACK_MODE_BELOW});
}

void activate(xcb_connection_t* connection, xcb_window_t window)
{
    static const auto activeWindow = X11::atoms<1>(connection, {"_NET_ACTIVE_WINDOW"}).front();
    X11::tellWindowManager(connection, window, activeWindow, {fromPager, XCB_CURRENT_TIME, XCB_WINDOW_NONE});
}

} // namespace skyvane::WindowManager
