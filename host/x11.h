#pragma once

#include <string_view>

#include <xcb/xcb.h>

/// The X server, as far as windows' toolkit leaves something to say to it.
namespace skyvane::X11 {

/// The application's own. Null where its windows are not the X server's.
xcb_connection_t* connection();

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name);

} // namespace skyvane::X11
