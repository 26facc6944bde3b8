// The desktop with an extension and files of the test's choice; what it opens goes to standard output.

#include "host/service/run_desktop.h"

#include <QApplication>

#include <iostream>

int main(int argc, char* argv[])
{
    if (argc != 4)
        return 2;
    QApplication application{argc, argv};
    return skyvane::runDesktop({.path = argv[1]},
        {
            .hostFile = argv[2],
            .configuration = argv[3],
            .open = [](const skyvane::URL& url) { std::cout << url.text() << std::endl; },
            .welcome = [] { std::cout << "welcome" << std::endl; },
            .settings = [] { std::cout << "settings" << std::endl; },
        });
}
