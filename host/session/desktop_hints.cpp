#include "host/session/desktop_hints.h"

#include "desk/x11.h"
#include "host/session/layer_shell.h"

#include <QGuiApplication>
#include <QWidget>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
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
    constexpr std::uint32_t longestHints = 9;
    const auto cookie
        = xcb_get_property(connection, 0, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 0, longestHints);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply{
        xcb_get_property_reply(connection, cookie, nullptr), &std::free};
    if (!reply || reply->format != 32 || reply->length == 0)
        return;
    const auto* words = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    std::vector<std::uint32_t> hints(words, words + reply->length);
    hints.front() &= ~groupHint;
    replace(connection, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);
}

void hintToWindowManager(xcb_connection_t* connection, xcb_window_t window)
{
    constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
    static const auto [windowType, utility, desktop, state, below, sticky, skipTaskBar, skipPager]
        = X11::atoms<8>(connection,
            {"_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_UTILITY", "_NET_WM_DESKTOP", "_NET_WM_STATE",
                "_NET_WM_STATE_BELOW", "_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR",
                "_NET_WM_STATE_SKIP_PAGER"});
    leaveWindowGroup(connection, window);
    replace(connection, window, windowType, XCB_ATOM_ATOM, std::array{utility});
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
