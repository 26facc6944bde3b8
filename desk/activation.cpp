#include "desk/activation.h"

#include <QGuiApplication>
#include <QWidget>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace skyvane::Activation {

namespace {

constexpr const char* waylandVariable = "XDG_ACTIVATION_TOKEN";
constexpr const char* x11Variable = "DESKTOP_STARTUP_ID";

/// The moment of the click, which an X11 token ends with: "…_TIME123456". 0: unknown.
std::uint32_t timeIn(const QString& token)
{
    const QString mark = QStringLiteral("_TIME");
    const qsizetype place = token.lastIndexOf(mark);
    return place < 0 ? 0 : token.mid(place + mark.size()).toUInt();
}

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply{
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Asks the window manager with the time of the click, without which it may take it for an intrusion.
void activateOnX11(xcb_connection_t* connection, xcb_window_t window, std::uint32_t time)
{
    constexpr std::uint32_t fromApplication = 1;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(connection, "_NET_ACTIVE_WINDOW");
    event.data.data32[0] = fromApplication;
    event.data.data32[1] = time;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    std::array<char, 32> bytes{};
    static_assert(sizeof event == sizeof bytes);
    std::memcpy(bytes.data(), &event, sizeof event);
    xcb_send_event(connection, 0, root,
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, bytes.data());
    xcb_flush(connection);
}

} // namespace

QString tokenOfStart()
{
    for (const char* name : {waylandVariable, x11Variable}) {
        if (QString token = qEnvironmentVariable(name); !token.isEmpty())
            return token;
    }
    return {};
}

QString tokenIn(const QVariantMap& platformData)
{
    for (const char* key : {"activation-token", "desktop-startup-id"}) {
        if (QString token = platformData.value(QLatin1String{key}).toString(); !token.isEmpty())
            return token;
    }
    return {};
}

QVariantMap platformData(const QString& token)
{
    if (token.isEmpty())
        return {};
    return {{QStringLiteral("activation-token"), token}, {QStringLiteral("desktop-startup-id"), token}};
}

void bringToFront(QWidget& window, const QString& token)
{
    if (!token.isEmpty())
        qputenv(waylandVariable, token.toUtf8()); // Where Qt looks for it as it asks the compositor.
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    qunsetenv(x11Variable);
    const std::uint32_t time = timeIn(token);
    if (time == 0 || QGuiApplication::platformName() != QStringLiteral("xcb"))
        return;
    if (const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>())
        activateOnX11(x11->connection(), static_cast<xcb_window_t>(window.winId()), time);
}

} // namespace skyvane::Activation
