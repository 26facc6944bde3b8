"""What GNOME's sessions have in common; not a desktop itself."""

import time

import buses
from session import WALLPAPER, need

VARIABLES = {
    "XDG_CURRENT_DESKTOP": "GNOME",
    "XDG_SESSION_DESKTOP": "gnome",
    "DESKTOP_SESSION": "gnome",
    "GSETTINGS_BACKEND": "keyfile",
}
PACKAGES = (
    "gnome-shell",
    "gnome-settings-daemon-common",
    "gsettings-desktop-schemas",
    "adwaita-icon-theme",
    "libgl1-mesa-dri",
    "qt6-gtk-platformtheme",
    "xwayland",
)
SETTINGS = f"""[org/gnome/shell]
welcome-dialog-last-shown-version='999'
disable-user-extensions=true
[org/gnome/mutter]
dynamic-workspaces=false
[org/gnome/desktop/wm/preferences]
num-workspaces=2
[org/gnome/desktop/interface]
enable-animations=false
[org/gnome/desktop/session]
idle-delay=uint32 0
[org/gnome/desktop/notifications]
show-banners=false
[org/gnome/desktop/background]
picture-uri='file://{WALLPAPER}'
"""
SHELL = "org.gnome.Shell"


def write_settings(session):
    file = session.home / ".config/glib-2.0/settings/keyfile"
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(SETTINGS)


def property_call(session, method, *words):
    return buses.call(session, SHELL, "/org/gnome/Shell", f"org.freedesktop.DBus.Properties.{method}", SHELL, *words)


def leave_overview(session):
    """In which a session begins."""
    need(lambda: property_call(session, "Get", "ShellVersion"), "no GNOME Shell on the message bus", 60)
    time.sleep(3)
    property_call(session, "Set", "OverviewActive", "<false>")
    need(lambda: "false" in property_call(session, "Get", "OverviewActive"), "the overview stays")
