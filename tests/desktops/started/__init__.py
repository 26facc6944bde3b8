"""The desktops, in the table's order."""

import importlib

NAMES = (
    "openbox", "xfwm4", "xfce", "mate", "muffin", "plasma_x11", "gnome_x11", "gnome_wayland", "i3", "awesome", "sway",
    "gnome48", "gnome48_extension", "plasma6", "plasma6_applets", "sway110", "labwc",
)  # fmt: skip


def find(name):
    return importlib.import_module(f"started.{name}").This()
