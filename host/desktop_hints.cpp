#include "host/desktop_hints.h"

#include <QGuiApplication>
#include <QWidget>

#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace skyvane {

namespace {

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply{
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void replace(
    xcb_connection_t* connection, xcb_window_t window, const char* name, xcb_atom_t type, auto values)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, name), type, 32,
        static_cast<std::uint32_t>(values.size()), values.data());
}

} // namespace

void makePartOfDesktop(QWidget& window)
{
    window.setWindowFlags(
        Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint | Qt::NoDropShadowWindowHint);
    window.setAttribute(Qt::WA_TranslucentBackground);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (QGuiApplication::platformName() != QStringLiteral("xcb") || x11 == nullptr)
        return;
    xcb_connection_t* connection = x11->connection();
    const auto id = static_cast<xcb_window_t>(window.winId());
    constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
    replace(connection, id, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
        std::array{atom(connection, "_NET_WM_WINDOW_TYPE_UTILITY")});
    replace(connection, id, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, std::array{everyDesktop});
    replace(connection, id, "_NET_WM_STATE", XCB_ATOM_ATOM,
        std::array{
            atom(connection, "_NET_WM_STATE_BELOW"),
            atom(connection, "_NET_WM_STATE_STICKY"),
            atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
            atom(connection, "_NET_WM_STATE_SKIP_PAGER"),
        });
    xcb_flush(connection);
}

} // namespace skyvane
