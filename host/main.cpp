#include "host/extension_path.h"
#include "host/run_command.h"
#include "host/run_desktop.h"

#include <QApplication>

#include <iostream>

namespace {

void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) { }

skyvane::ExtensionProgram extension()
{
    return {.path = skyvane::extensionPath(QCoreApplication::applicationDirPath().toStdString())};
}

/// On a desktop that offers both, windows are X11's: only there can they place themselves.
void preferX11()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb");
}

int runCommand(const std::vector<std::string>& words, char* argv[])
{
    // Pictures need fonts but no display, and standard error is for this program's own words.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(dropMessage);
    int programNameOnly = 1;
    const QGuiApplication application{programNameOnly, argv};
    return skyvane::runCommand(words, extension(), {.out = std::cout, .error = std::cerr});
}

} // namespace

int main(int argc, char* argv[])
{
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (!words.empty())
        return runCommand(words, argv);
    preferX11();
    QApplication application{argc, argv};
    return skyvane::runDesktop(skyvane::standardSetup(extension()));
}
