#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QVariantMap>

class QWidget;

/// Activation tokens (startup notification): how a window comes to the front on behalf of the click that
/// asked for it.
namespace skyvane::Activation {

/// What the desktop gave this process at its start; empty: nothing.
QString tokenOfStart();

/// For a program that is started without a click of its own: a token is good for one start.
QProcessEnvironment withoutToken(QProcessEnvironment environment);

/// What comes along with a request over D-Bus; empty: nothing.
QString tokenIn(const QVariantMap& platformData);
QVariantMap platformData(const QString& token);

/// Shows the window, restores it where it is minimised, and brings it to the front as far as the desktop
/// allows that to the holder of the token.
void bringToFront(QWidget& window, const QString& token);

} // namespace skyvane::Activation
