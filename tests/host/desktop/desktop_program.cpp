// The desktop with an extension and files of the test's choice, and a folder for alerts where those are told;
// what it opens goes to standard output, with the activation token where SHOWS_TOKENS is set.

#include "host/service/run_desktop.h"

#include <QApplication>

#include <filesystem>
#include <iostream>
#include <optional>

int main(int argc, char* argv[])
{
    if (argc != 4 && argc != 5)
        return 2;
    static const bool showsTokens = qEnvironmentVariableIsSet("SHOWS_TOKENS");
    QApplication application{argc, argv};
    std::optional<skyvane::AlertSetup> alerts;
    if (argc == 5) {
        const std::filesystem::path folder = argv[4];
        alerts = {
            .choices = folder / "alerts.json",
            .told = folder / "told.json",
            .open = [](const skyvane::URL& url, const QString&) { std::cout << url.text() << std::endl; },
        };
    }
    return skyvane::runDesktop({.path = argv[1]},
        {
            .hostFile = argv[2],
            .configuration = argv[3],
            .open =
                [](const skyvane::URL& url, const QString& token) {
                    std::cout << url.text() << (showsTokens ? " " + token.toStdString() : "") << std::endl;
                },
            .welcome = [] { std::cout << "welcome" << std::endl; },
            .settings = [](const QString&) { std::cout << "settings" << std::endl; },
            .alerts = alerts,
        });
}
