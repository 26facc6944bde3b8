#include "host/service/run_desktop.h"

#include "desk/bus/single_instance.h"
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
        askHost(bus, &HostInterface::ShowGallery);
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
    const QDBusConnection bus = QDBusConnection::sessionBus();
    std::optional<Desktop> desktop;
    const HostService service{bus, desktop};
    const SingleInstance instance{bus, BusName::host()};
    if (!instance.isFirst())
        return showGalleryOfOther(bus);
    desktop.emplace(extension, setup);
    const int status = QApplication::exec();
    desktop.reset(); // What it remembers is written before the name is free for the next host.
    return status;
}

} // namespace skyvane
