#include "host/session/way_of_session.h"

#include "desk/text.h"
#include "desk/x11.h"
#include "host/session/dock_way.h"
#include "host/session/layer_shell.h"
#include "host/session/shell_way.h"
#include "host/session/unmanaged_way.h"
#include "host/session/window_manager.h"

#include <QGuiApplication>

#include <utility>

namespace skyvane {

namespace {

/// A compositor puts ordinary windows where it likes, on top of others: no place for widgets, which would
/// only cover each other and the user's work.
class NoWay : public DesktopWay {
public:
    explicit NoWay(QString problem) : m_problem(std::move(problem)) { }

    std::optional<QString> problem() const override { return m_problem; }
    bool arePlacesKnown() const override { return false; }

private:
    QString m_problem;
};

std::unique_ptr<DesktopWay> noWay(const QString& cure)
{
    return std::make_unique<NoWay>(
        localizedText("This desktop gives programs no place below its windows, so the widgets are not shown.")
        + QLatin1Char{' '} + cure);
}

std::unique_ptr<DesktopWay> wayOnX11(xcb_connection_t* connection)
{
    if (WindowManager::showsDesktop(connection))
        return std::make_unique<DockWay>(connection);
    if (X11::isWithinWayland(connection))
        return noWay(LayerShell::isBuiltIn()
                ? localizedText("Start them without QT_QPA_PLATFORM, or use a compositor with layer-shell.")
                : localizedText("Install a build of Skyvane with LayerShellQt, as Debian 13 has it."));
    return std::make_unique<UnmanagedWay>(connection);
}

} // namespace

std::unique_ptr<DesktopWay> wayOfSession()
{
    if (xcb_connection_t* connection = X11::connection())
        return wayOnX11(connection);
    if (QGuiApplication::platformName() != QStringLiteral("wayland"))
        return std::make_unique<DesktopWay>();
    if (auto way = ShellWay::way(QDBusConnection::sessionBus()))
        return way;
    if (auto way = LayerShell::way())
        return way;
    return noWay(LayerShell::isBuiltIn()
            ? localizedText("Install Xwayland, or use a compositor with layer-shell.")
            : localizedText(
                "Install Xwayland, or a build of Skyvane with LayerShellQt, as Debian 13 has it."));
}

} // namespace skyvane
