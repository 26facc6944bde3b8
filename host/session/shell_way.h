#pragma once

#include <QDBusConnection>

#include <memory>

namespace skyvane {
class DesktopWay;
}

/// Shells of desktops that show the widgets themselves, as Plasma does with our applets, or run the host as a
/// client of their own and place its windows, as GNOME Shell does with our extension:
/// desk/bus/org.skyvane.Shell.xml. A window says in its title where it belongs: "skyvane:", the screen's
/// connector, and the place in points from the screen's upper left corner.
namespace skyvane::ShellWay {

/// What the host is started with by a shell that places its windows.
inline constexpr const char* option = "--in-shell";

/// To be called before there is a QApplication: the display is the connection that the shell has made for
/// this process.
void useOwnConnection();

/// Whether there is such a shell, which has been asked to show the widgets.
bool isAsked(const QDBusConnection& bus);

/// Null where there is none.
std::unique_ptr<DesktopWay> way(const QDBusConnection& bus);

} // namespace skyvane::ShellWay
