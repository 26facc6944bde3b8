// The settings page in a window, over a home folder of the test's choice, in light or dark.

#include "companion/settings/settings_page.h"
#include "platform/files/files.h"
#include "platform/pinned.h"

#include <QApplication>
#include <QPalette>

#include <iostream>
#include <string_view>

namespace {

QPalette darkPalette()
{
    QPalette palette{QColor{45, 45, 48}};
    palette.setColor(QPalette::Base, QColor{30, 30, 32});
    return palette;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3)
        return 2;
    const skyvane::Pinned<skyvane::HomeFolder> home{{argv[1]}};
    QApplication application{argc, argv};
    QApplication::setStyle(QStringLiteral("fusion"));
    if (argv[2] == std::string_view{"dark"})
        QApplication::setPalette(darkPalette());
    const skyvane::FontMeasurer fonts;
    skyvane::Preferences preferences{std::filesystem::path{argv[1]} / "companion.ini"};
    skyvane::SettingsPage page{fonts, QDBusConnection::systemBus(), preferences};
    QObject::connect(&page, &skyvane::SettingsPage::changed, [] { std::cout << "changed" << std::endl; });
    page.setWindowTitle(QStringLiteral("Settings"));
    page.resize(1060, 740);
    page.show();
    page.setFocus();
    return QApplication::exec();
}
