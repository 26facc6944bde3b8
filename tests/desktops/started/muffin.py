from started.desktop import NOT_TRIED, XDesktop


class This(XDesktop):
    title = "Cinnamon's muffin 5.6 (X11)"
    packages = ("muffin", "cinnamon-desktop-data", "cinnamon-settings-daemon", "libgl1-mesa-dri", "qt6-gtk-platformtheme")
    variables = {"XDG_CURRENT_DESKTOP": "X-Cinnamon"}
    without = NOT_TRIED | {"workspaces": "muffin alone, without Cinnamon's shell, paints nothing after a change of workspace"}
    manager = ("muffin", "--sm-disable")
