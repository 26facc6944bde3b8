from started.desktop import PANEL, BACKDROP, XDesktop


class This(XDesktop):
    title = "MATE 1.26: marco, caja, panel (X11)"
    packages = ("marco", "caja", "mate-panel", "mate-desktop", "mate-settings-daemon-common", "mate-icon-theme", "qt6-gtk-platformtheme")
    variables = {"XDG_CURRENT_DESKTOP": "MATE"}
    manager = ("marco", "--sm-disable")
    others = {"panel": ("mate-panel",), "desktop": ("caja", "--no-default-window", "--force-desktop")}
    shows = (PANEL, BACKDROP)
