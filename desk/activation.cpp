#include "desk/activation.h"

#include "desk/x11.h"

#include <QWidget>

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
    if (time != 0 && connection != nullptr)
        activateOnX11(connection, static_cast<xcb_window_t>(window.winId()), time);
}

} // namespace skyvane::Activation
