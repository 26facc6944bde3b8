#include "desk/activation.h"

#include "desk/x11.h"

#include <QCoreApplication>
#include <QWidget>

#include <iterator>

namespace skyvane::Activation {

namespace {

constexpr const char* waylandVariable = "XDG_ACTIVATION_TOKEN";
constexpr const char* x11Variable = "DESKTOP_STARTUP_ID";

/// The moment of the click, which an X11 token ends with: "…_TIME123456". 0: unknown.
std::uint32_t timeIn(const QString& token)
{
    const QString mark = QStringLiteral("_TIME");
    const qsizetype found = token.lastIndexOf(mark);
    return found < 0 ? 0 : token.mid(found + mark.size()).toUInt();
}

/// Asks the window manager with the time of the click, without which it may take it for an intrusion.
void activateOnX11(xcb_connection_t* connection, xcb_window_t window, std::uint32_t time)
{
    constexpr std::uint32_t fromApplication = 1;
    static const auto activeWindow = X11::atoms<1>(connection, {"_NET_ACTIVE_WINDOW"}).front();
    X11::tellWindowManager(connection, window, activeWindow, {fromApplication, time});
}

/// Startup notification: a text in client messages of 20 bytes each, the first of a type of its own.
void announce(xcb_connection_t* connection, xcb_window_t window, const QString& text)
{
    static const auto [begin, more]
        = X11::atoms<2>(connection, {"_NET_STARTUP_INFO_BEGIN", "_NET_STARTUP_INFO"});
    const QByteArray bytes = text.toUtf8() + '\0';
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = window;
    constexpr qsizetype room = sizeof message.data.data8;
    for (qsizetype start = 0; start < bytes.size(); start += room) {
        message.type = start == 0 ? begin : more;
        std::ranges::fill(message.data.data8, 0);
        std::ranges::copy(bytes.mid(start, room), std::begin(message.data.data8));
        xcb_send_event(connection, 0, X11::root(connection), XCB_EVENT_MASK_PROPERTY_CHANGE,
            reinterpret_cast<const char*>(&message));
    }
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

QProcessEnvironment withoutToken(QProcessEnvironment environment)
{
    for (const char* name : {waylandVariable, x11Variable})
        environment.remove(QString::fromLatin1(name));
    return environment;
}

QProcessEnvironment withToken(QProcessEnvironment environment, const QString& token)
{
    environment = withoutToken(environment);
    if (!token.isEmpty()) {
        for (const char* name : {waylandVariable, x11Variable})
            environment.insert(QString::fromLatin1(name), token);
    }
    return environment;
}

QString newToken(xcb_connection_t* connection, std::uint32_t window, std::uint32_t time)
{
    static int count = 0;
    if (time == 0)
        return {};
    QString token = QStringLiteral("skyvane-%1-%2_TIME%3")
                        .arg(QCoreApplication::applicationPid())
                        .arg(++count)
                        .arg(time);
    // Silent: no pointer turns into an hourglass for a window that may be there already.
    announce(connection, window,
        QStringLiteral("new: ID=%1 NAME=Skyvane SCREEN=0 SILENT=1 TIMESTAMP=%2").arg(token).arg(time));
    return token;
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
    xcb_connection_t* connection = X11::connection();
    if (time == 0 || connection == nullptr)
        return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    activateOnX11(connection, id, time);
    announce(connection, id, QStringLiteral("remove: ID=%1").arg(token));
}

} // namespace skyvane::Activation
