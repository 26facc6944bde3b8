#include "host/extension_path.h"
#include "host/run_command.h"

#include <QGuiApplication>

#include <iostream>

namespace {

void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) { }

} // namespace

int main(int argc, char* argv[])
{
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);

    // Pictures need fonts but no display, and standard error is for this program's own words.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(dropMessage);
    int programNameOnly = 1;
    const QGuiApplication application{programNameOnly, argv};

    const std::filesystem::path folder = QCoreApplication::applicationDirPath().toStdString();
    return skyvane::runCommand(
        words, {.path = skyvane::extensionPath(folder)}, {.out = std::cout, .error = std::cerr});
}
