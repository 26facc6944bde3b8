#include "host/session/desktop_hints.h"

#include "desk/x11.h"
#include "host/session/layer_shell.h"
#include "host/session/window_manager.h"

#include <QGuiApplication>
#include <QWidget>

#include <array>
#include <cstdint>
#include <vector>

namespace skyvane {

namespace {

bool isWayland()
{
    return QGuiApplication::platformName() == QStringLiteral("wayland");
}

bool isOnLayer()
{
    static const bool isOffered = isWayland() && LayerShell::isOffered();
    return isOffered;
}

void replace(
    xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type, auto values)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, 32,
        static_cast<std::uint32_t>(values.size()), values.data());
}

/// Window managers keep utility windows above the other windows of their group, here the gallery.
void leaveWindowGroup(xcb_connection_t* connection, xcb_window_t window)
{
    constexpr std::uint32_t groupHint = 1U << 6;
    std::vector<std::uint32_t> hints = X11::words(connection, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS);
    if (hints.empty())
        return;
    hints.front() &= ~groupHint;
    replace(connection, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);
}

/// A dock stays when the desktop is shown. Where that is not on offer a dock is rather a bar: tiling managers
/// (i3, for one) give it a strip of the screen, although it asks for a place below and for no room of its
/// own.
bool isDock(xcb_connection_t* connection)
{
    static const bool isOne = WindowManager::showsDesktop(connection);
    return isOne;
}

/// The connection that such a window is a dock on; null where it is anything else.
xcb_connection_t* connectionOfDock()
{
    xcb_connection_t* connection = X11::connection();
    return connection != nullptr && isDock(connection) ? connection : nullptr;
}

void hintToWindowManager(xcb_connection_t* connection, xcb_window_t window)
{
    constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
    static const auto [windowType, dock, utility, desktop, state, below, sticky, skipTaskBar, skipPager]
        = X11::atoms<9>(connection,
            {"_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_WINDOW_TYPE_UTILITY",
                "_NET_WM_DESKTOP", "_NET_WM_STATE", "_NET_WM_STATE_BELOW", "_NET_WM_STATE_STICKY",
                "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"});
    leaveWindowGroup(connection, window);
    replace(connection, window, windowType, XCB_ATOM_ATOM, std::array{isDock(connection) ? dock : utility});
    replace(connection, window, desktop, XCB_ATOM_CARDINAL, std::array{everyDesktop});
    replace(connection, window, state, XCB_ATOM_ATOM, std::array{below, sticky, skipTaskBar, skipPager});
    xcb_flush(connection);
}

} // namespace

void makePartOfDesktop(QWidget& window)
{
    window.setWindowFlags(
        Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint | Qt::NoDropShadowWindowHint);
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    if (isOnLayer())
        LayerShell::adopt(window);
    else if (xcb_connection_t* connection = X11::connection())
        hintToWindowManager(connection, static_cast<xcb_window_t>(window.winId()));
}

void showOnDesktop(QWidget& window)
{
    window.show();
    if (xcb_connection_t* connection = connectionOfDock())
        WindowManager::lower(connection, static_cast<xcb_window_t>(window.winId()));
}

void stayOnDesktop(QWidget& window)
{
    xcb_connection_t* connection = connectionOfDock();
    if (connection == nullptr)
        return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    if (!WindowManager::isDesktopShown(connection)) // KWin would bring the other windows back.
        WindowManager::activate(connection, id);
    WindowManager::lower(connection, id);
}

void moveOnDesktop(QWidget& window, const QPoint& place)
{
    if (isOnLayer())
        LayerShell::move(window, place);
    else
        window.move(place);
}

bool arePlacesKnown()
{
    return !isWayland();
}

} // namespace skyvane
