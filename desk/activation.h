#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QVariantMap>

class QWidget;

/// Activation tokens (startup notification): how a window comes to the front on behalf of the click that
/// asked for it.
namespace skyvane::Activation {

/// The token that the desktop gave this process at its start; empty when it gave none.
QString tokenOfStart();

/// The environment for a program that is started without a click of its own: without this process's token,
/// which is good for one start.
QProcessEnvironment withoutToken(QProcessEnvironment environment);

/// The token that came with a call over D-Bus; empty when there was none.
QString tokenIn(const QVariantMap& platformData);
QVariantMap platformData(const QString& token);

/// Shows the window, restores it where it is minimised, and brings it to the front as far as the desktop
/// allows that to the holder of the token.
void bringToFront(QWidget& window, const QString& token);

} // namespace skyvane::Activation
