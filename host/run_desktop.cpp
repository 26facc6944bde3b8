#include "host/run_desktop.h"

#include "host/ask_host.h"
#include "host/host_service.h"
#include "platform/files/files.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLoggingCategory>
#include <QUrl>

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

DesktopSetup standardSetup(const ExtensionProgram& extension)
{
    return {
        .extension = extension,
        .hostFile = HostFile::standardPath(),
        .configuration = configurationFile(Files::homeFolder()),
        .open = [](const URL& url) { QDesktopServices::openUrl(QUrl{QString::fromStdString(url.text())}); },
    };
}

int runDesktop(const DesktopSetup& setup)
{
    QApplication::setQuitOnLastWindowClosed(false);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && !bus.registerService(HostService::name()))
        return showGalleryOfOther(bus);
    Desktop desktop{setup};
    const HostService service{bus, desktop};
    return QApplication::exec();
}

} // namespace skyvane
