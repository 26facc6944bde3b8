from started.desktop import PANEL, WALLPAPER, XDesktop


class This(XDesktop):
    title = "Xfce 4.18: xfwm4, xfdesktop, panel (X11)"
    packages = ("xfwm4", "xfdesktop4", "xfce4-panel", "xfconf", "gvfs", "adwaita-icon-theme", "qt6-gtk-platformtheme")
    variables = {"XDG_CURRENT_DESKTOP": "XFCE", "XFCE_PANEL_MIGRATE_DEFAULT": "1"}
    manager = ("xfwm4", "--sm-client-disable")
    others = {"panel": ("xfce4-panel", "--sm-client-disable"), "desktop": ("xfdesktop", "--sm-client-disable")}
    shows = (PANEL, WALLPAPER)
