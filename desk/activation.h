#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QVariantMap>

#include <cstdint>

class QWidget;
struct xcb_connection_t;

/// Activation tokens (startup notification): how a window comes to the front on behalf of the click that
/// asked for it.
namespace skyvane::Activation {

/// The token that the desktop gave this process at its start; empty when it gave none.
QString tokenOfStart();

/// The environment for a program that is started without a click of its own: without this process's token,
/// which is good for one start.
QProcessEnvironment withoutToken(QProcessEnvironment environment);

/// The environment for a program that the user starts with a click in a window of this process. An empty
/// token is none.
QProcessEnvironment withToken(QProcessEnvironment environment, const QString& token);

/// A token for what the user starts with a click in this window of an X server, announced to the window
/// manager (startup notification). `time`: the server's, of the click; 0, for no click, gives an empty token.
QString newToken(xcb_connection_t* connection, std::uint32_t window, std::uint32_t time);

/// The token that came with a call over D-Bus; empty when there was none.
QString tokenIn(const QVariantMap& platformData);
QVariantMap platformData(const QString& token);

/// Shows the window, restores it where it is minimised, and brings it to the front as far as the desktop
/// allows that to the holder of the token.
void bringToFront(QWidget& window, const QString& token);

} // namespace skyvane::Activation
