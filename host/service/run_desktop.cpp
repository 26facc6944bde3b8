#include "host/service/run_desktop.h"

#include "host/service/ask_host.h"
#include "host/service/host_service.h"
#include "platform/files/configuration_file.h"

#include <QApplication>
#include <QLoggingCategory>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.host")

int showGalleryOfOther(const QDBusConnection& bus)
{
    try {
        askHost(bus, QStringLiteral("ShowGallery"));
        return 0;
    } catch (const HostError& error) {
        qCWarning(journal, "the running host does not answer: %s", error.what());
        return 1;
    }
}

} // namespace

DesktopSetup standardSetup(const Companion& companion)
{
    return {
        .hostFile = HostFile::standardPath(),
        .configuration = Files::configurationFile(),
        .open = [companion](const URL& url) { companion.openLink(url); },
        .welcome = [companion] { companion.startInPlaceOfHost(); },
        .settings = [companion] { companion.start({QStringLiteral("--settings")}); },
    };
}

int runDesktop(const ExtensionProgram& program, const DesktopSetup& setup)
{
    QApplication::setQuitOnLastWindowClosed(false);
    ExtensionProcess extension{program};
    extension.start(); // Gets ready while the windows do.
    QDBusConnection bus = QDBusConnection::sessionBus();
    HostService service{bus}; // Before its name is known, so that nobody who knows it finds nothing.
    if (bus.isConnected() && !bus.registerService(HostService::name()))
        return showGalleryOfOther(bus);
    Desktop desktop{extension, setup};
    service.serve(desktop);
    return QApplication::exec();
}

} // namespace skyvane
