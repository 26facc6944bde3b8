#include "desk/x11.h"

#include <QGuiApplication>

namespace skyvane::X11 {

xcb_connection_t* connection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const bool isUsed = QGuiApplication::platformName() == QStringLiteral("xcb");
    return isUsed && x11 != nullptr ? x11->connection() : nullptr;
}

xcb_window_t root(xcb_connection_t* connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

std::vector<std::uint32_t> words(
    xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type)
{
    constexpr std::uint32_t longest = 4096;
    const auto cookie = xcb_get_property(connection, 0, window, property, type, 0, longest);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply{
        xcb_get_property_reply(connection, cookie, nullptr), &std::free};
    if (!reply || reply->format != 32)
        return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->length};
}

} // namespace skyvane::X11
