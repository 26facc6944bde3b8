#include "host/session/toolkit_look.h"

#include <QGuiApplication>

namespace skyvane {

void keepThemesOut()
{
    // Else the theme goes by the desktop's name, which stands in any of five variables.
    QGuiApplication::setDesktopSettingsAware(false);
    for (const char* choice : {"QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE"})
        qunsetenv(choice);
}

} // namespace skyvane
