#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include <xcb/xcb.h>

/// What has to be said to the X server without the toolkit.
namespace skyvane::X11 {

/// The application's connection; null when its windows are not on an X server.
xcb_connection_t* connection();

xcb_window_t root(xcb_connection_t* connection);

/// Whether the server shows its windows as those of a Wayland compositor.
bool isWithinWayland(xcb_connection_t* connection);

/// Owns what the server answered; null where it failed.
template <class Answer>
using Reply = std::unique_ptr<Answer, decltype(&std::free)>;

template <class Answer>
Reply<Answer> reply(Answer* answer)
{
    return {answer, &std::free};
}

/// Sends the window manager a message about a window.
void tellWindowManager(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t type,
    const std::array<std::uint32_t, 5>& words);

/// The 32-bit words of a window's property; empty where it has none of this type.
std::vector<std::uint32_t> words(
    xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type);

/// The same of several windows, asked for in one round trip.
std::vector<std::vector<std::uint32_t>> words(xcb_connection_t* connection,
    const std::vector<xcb_window_t>& windows, xcb_atom_t property, xcb_atom_t type);

/// The atoms of these names, asked for in one round trip; XCB_ATOM_NONE where the server fails.
template <std::size_t count>
std::array<xcb_atom_t, count> atoms(
    xcb_connection_t* connection, const std::array<std::string_view, count>& names)
{
    std::array<xcb_intern_atom_cookie_t, count> asked{};
    std::ranges::transform(names, asked.begin(), [&](std::string_view name) {
        return xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    });
    std::array<xcb_atom_t, count> list{};
    std::ranges::transform(asked, list.begin(), [&](xcb_intern_atom_cookie_t cookie) {
        const auto answer = reply(xcb_intern_atom_reply(connection, cookie, nullptr));
        return answer ? answer->atom : xcb_atom_t{XCB_ATOM_NONE};
    });
    return list;
}

} // namespace skyvane::X11
