#include "host/x11.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>

namespace skyvane::X11 {

xcb_connection_t* connection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const bool isUsed = QGuiApplication::platformName() == QStringLiteral("xcb");
    return isUsed && x11 != nullptr ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply{
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace skyvane::X11
