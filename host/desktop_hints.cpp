#include "host/desktop_hints.h"

#include "host/layer_shell.h"
#include "host/x11.h"

#include <QGuiApplication>
#include <QWidget>

#include <array>

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
    xcb_connection_t* connection, xcb_window_t window, const char* name, xcb_atom_t type, auto values)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, X11::atom(connection, name), type, 32,
        static_cast<std::uint32_t>(values.size()), values.data());
}

void hintToWindowManager(xcb_connection_t* connection, xcb_window_t window)
{
    constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
    replace(connection, window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
        std::array{X11::atom(connection, "_NET_WM_WINDOW_TYPE_UTILITY")});
    replace(connection, window, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, std::array{everyDesktop});
    replace(connection, window, "_NET_WM_STATE", XCB_ATOM_ATOM,
        std::array{
            X11::atom(connection, "_NET_WM_STATE_BELOW"),
            X11::atom(connection, "_NET_WM_STATE_STICKY"),
            X11::atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
            X11::atom(connection, "_NET_WM_STATE_SKIP_PAGER"),
        });
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
