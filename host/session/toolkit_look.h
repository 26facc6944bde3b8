#pragma once

namespace skyvane {

/// Keeps the desktop's theme and style out of the toolkit: a widget has none, and GTK's alone brings 70 MB of
/// libraries. To be called before there is a QGuiApplication. Changes the environment.
void keepThemesOut();

} // namespace skyvane
