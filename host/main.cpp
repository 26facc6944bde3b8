#include "desk/bus/names.h"
#include "desk/display.h"
#include "desk/journal.h"
#include "host/commands/run_command.h"
#include "host/service/run_desktop.h"
#include "host/service/supervisor.h"
#include "host/session/layer_shell.h"
#include "host/session/shell_way.h"
#include "host/session/toolkit_look.h"
#include "paint/to_qt.h"
#include "platform/files/programs.h"
#include "platform/files/shared_turn.h"
#include "platform/text/localized.h"

#include <QApplication>
#include <QDBusConnection>

#include <sys/prctl.h>

#include <filesystem>
#include <iostream>

namespace {

void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) { }

skyvane::ExtensionProgram extension()
{
    return {.path = skyvane::Programs::widgets(skyvane::Programs::ownFolder())};
}

/// By the unit that the user's service manager starts it by, for one.
bool isSandboxed()
{
    return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1;
}

/// Windows that can be put where they belong: on the desktop layer of a Wayland compositor, else as X11's.
void choosePlatform()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    const bool hasX11 = qEnvironmentVariableIsSet("DISPLAY");
    if (skyvane::LayerShell::isOffered())
        qputenv("QT_QPA_PLATFORM", hasX11 ? "wayland;xcb" : "wayland");
    else if (hasX11)
        qputenv("QT_QPA_PLATFORM", "xcb");
}

void useLanguageOfUser()
{
    const std::filesystem::path prefix = skyvane::Programs::ownFolder().parent_path();
    skyvane::useCatalogues(skyvane::Programs::catalogues(prefix));
    QGuiApplication::setLayoutDirection(skyvane::toQt(skyvane::textDirection()));
}

int runCommand(const std::vector<std::string>& words, char* argv[])
{
    // Pictures need fonts but no display, and standard error is for this program's own words.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(dropMessage);
    int programNameOnly = 1;
    const QGuiApplication application{programNameOnly, argv};
    useLanguageOfUser(); // For a line and what is rendered; the commands' own words stay English.
    return skyvane::runCommand(
        words, extension(), {.out = std::cout, .error = std::cerr}, skyvane::SharedTurn::file());
}

/// As the user has it: some of it is taken out later, some by the toolkit. A connection to the compositor is
/// this process's alone.
QProcessEnvironment environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("WAYLAND_SOCKET"));
    return environment;
}

int showWidgets(const skyvane::HostStart& start, char* argv[])
{
    skyvane::keepJournalPrintable();
    const std::filesystem::path folder = skyvane::Programs::ownFolder();
    const skyvane::Companion companion{
        .program = skyvane::Programs::companion(folder),
        .environment = environment(),
        .outside = isSandboxed() ? &QDBusConnection::sessionBus : nullptr,
    };
    const skyvane::Display display{"skyvane-host"};
    start.isInShell ? skyvane::ShellWay::useOwnConnection() : choosePlatform();
    skyvane::keepThemesOut();
    QApplication::setDesktopFileName(skyvane::BusName::host());
    int programNameOnly = 1;
    const auto application = display.open<QApplication>(programNameOnly, argv);
    useLanguageOfUser();
    return skyvane::runDesktop(extension(), skyvane::standardSetup(companion), start);
}

} // namespace

int main(int argc, char* argv[])
{
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (words == std::vector<std::string>{"--supervise"})
        return skyvane::Supervisor::run(
            [&](bool isRestart) { return showWidgets({.isSupervised = true, .isRestart = isRestart}, argv); },
            skyvane::Display::isReachable);
    if (words == std::vector<std::string>{skyvane::ShellWay::option})
        return showWidgets({.isInShell = true}, argv);
    if (!words.empty())
        return runCommand(words, argv);
    return showWidgets({}, argv);
}
