#include "desk/x11.h"

#include <QGuiApplication>
#include <QScreen>

#include <iterator>

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

/// Newer servers have an extension of this name, older ones outputs.
bool isWithinWayland(xcb_connection_t* connection)
{
    const std::string_view name = "XWAYLAND";
    const auto answer = reply(xcb_query_extension_reply(connection,
        xcb_query_extension(connection, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    return (answer && answer->present != 0)
        || std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* screen) {
               return screen->name().startsWith(
                   QLatin1String{name.data(), static_cast<qsizetype>(name.size())});
           });
}

void tellWindowManager(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t type,
    const std::array<std::uint32_t, 5>& words)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    std::ranges::copy(words, std::begin(message.data.data32));
    xcb_send_event(connection, 0, root(connection),
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

std::vector<std::uint32_t> words(
    xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type)
{
    return words(connection, std::vector{window}, property, type).front();
}

std::vector<std::vector<std::uint32_t>> words(xcb_connection_t* connection,
    const std::vector<xcb_window_t>& windows, xcb_atom_t property, xcb_atom_t type)
{
    constexpr std::uint32_t longest = 4096;
    std::vector<xcb_get_property_cookie_t> asked;
    asked.reserve(windows.size());
    for (const xcb_window_t window : windows)
        asked.push_back(xcb_get_property(connection, 0, window, property, type, 0, longest));
    std::vector<std::vector<std::uint32_t>> all;
    for (const xcb_get_property_cookie_t cookie : asked) {
        auto& words = all.emplace_back();
        const auto answer = reply(xcb_get_property_reply(connection, cookie, nullptr));
        if (!answer || answer->format != 32)
            continue;
        const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(answer.get()));
        words.assign(first, first + answer->length);
    }
    return all;
}

} // namespace skyvane::X11
