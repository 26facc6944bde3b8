#include "bench/field/desktop_session.h"

#include <QLibraryInfo>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace skyvane::bench {

namespace {

constexpr std::array variables{"XDG_CURRENT_DESKTOP", "XDG_SESSION_DESKTOP", "DESKTOP_SESSION", "GDMSESSION",
    "GNOME_DESKTOP_SESSION_ID"};
constexpr std::array others{"KDE_FULL_SESSION", "KDE_SESSION_VERSION", "QT_QPA_PLATFORMTHEME",
    "QT_STYLE_OVERRIDE", "WAYLAND_DISPLAY"};

void requirePlugin()
{
    const auto folder = QLibraryInfo::path(QLibraryInfo::PluginsPath).toStdString();
    if (!std::filesystem::exists(folder + "/platformthemes/libqgtk3.so"))
        throw std::runtime_error{"the toolkit's plugin for GTK's theme is missing"};
}

} // namespace

std::string suffix(Setting setting)
{
    return setting == Setting::gnome ? ", GNOME" : "";
}

void leaveDesktop()
{
    for (const char* variable : variables)
        unsetenv(variable);
    for (const char* variable : others)
        unsetenv(variable);
}

DesktopSession::DesktopSession(Setting setting)
{
    if (setting == Setting::plain)
        return;
    requirePlugin();
    set("XDG_CURRENT_DESKTOP", "GNOME");
    for (const char* variable : {"XDG_SESSION_DESKTOP", "DESKTOP_SESSION", "GDMSESSION"})
        set(variable, "gnome");
    set("GNOME_DESKTOP_SESSION_ID", "this-is-deprecated");
}

} // namespace skyvane::bench
