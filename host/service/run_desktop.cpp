#include "host/service/run_desktop.h"

#include "desk/alerts/alert_choices_file.h"
#include "desk/bus/single_instance.h"
#include "desk/look/appearance.h"
#include "desk/text.h"
#include "host/service/ask_host.h"
#include "host/service/host_service.h"
#include "host/session/shell_way.h"
#include "host/session/termination_watch.h"
#include "host/session/way_of_session.h"
#include "platform/files/configuration_file.h"
#include "platform/files/shared_turn.h"

#include <QApplication>
#include <QDBusConnectionInterface>
#include <QLoggingCategory>
#include <QMessageBox>

#include <utility>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.host")

int showGalleryOfOther(const QDBusConnection& bus)
{
    try {
        askHost(bus, &HostInterface::ShowGallery);
        return 0;
    } catch (const HostError& error) {
        qCWarning(journal, "the running host does not answer: %s", error.what());
        return 1;
    }
}

/// A shell that shows the widgets itself does it in place of this process. Absent without one.
std::optional<int> leaveToShell(const QDBusConnection& bus, const HostStart& start)
{
    if (start.isInShell)
        return std::nullopt;
    const bool wasShown = bus.isConnected() && bus.interface()->isServiceRegistered(BusName::host()).value();
    if (!ShellWay::isAsked(bus))
        return std::nullopt;
    return wasShown && !start.isSupervised ? showGalleryOfOther(bus) : 0;
}

/// Once, in the journal and in a window. That is no failure which another start could mend.
int sayProblem(const QString& problem)
{
    qCWarning(journal, "%s", qUtf8Printable(problem));
    QMessageBox{QMessageBox::Warning, localizedText("Skyvane Widgets"), problem, QMessageBox::Close}.exec();
    return 0;
}

} // namespace

DesktopSetup standardSetup(const Companion& companion)
{
    return {
        .hostFile = HostFile::standardPath(),
        .configuration = Files::configurationFile(),
        .open = [companion](const URL& url,
                    const QString& token) { companion.openLink(QDBusConnection::sessionBus(), url, token); },
        .welcome = [companion] { companion.startInPlaceOfHost(); },
        .settings
        = [companion](const QString& token) { companion.start({QStringLiteral("--settings")}, token); },
        .alerts = AlertSetup{
            .choices = AlertChoicesFile::standardPath(),
            .told = ToldAlerts::standardPath(),
            .open =
                [companion](const URL& url, const QString& token) {
                    companion.openLink(QDBusConnection::sessionBus(), url, token);
                },
        },
        .turn = SharedTurn::file(),
    };
}

int runDesktop(const ExtensionProgram& program, const DesktopSetup& setup, const HostStart& start)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (const auto status = leaveToShell(bus, start))
        return *status;
    auto way = wayOfSession();
    if (const auto problem = way->problem())
        return sayProblem(*problem);
    QApplication::setQuitOnLastWindowClosed(false);
    ExtensionProcess extension{program};
    extension.start(); // Gets ready while the windows do.
    std::optional<Desktop> desktop;
    const HostService service{bus, desktop};
    const SingleInstance instance{bus, BusName::host()};
    if (!instance.isFirst())
        return start.isRestart ? 0 : showGalleryOfOther(bus);
    const Appearance appearance{bus};
    const TerminationWatch termination{[] { QCoreApplication::quit(); }};
    desktop.emplace(extension, setup, std::move(way));
    const int status = QApplication::exec();
    desktop.reset(); // What it remembers is written before the name is free for the next host.
    return status;
}

} // namespace skyvane
