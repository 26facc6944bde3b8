from session import WALLPAPER
from started.desktop import BACKDROP, NOT_TRIED, PANEL, XDesktop

CHANNEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-desktop" version="1.0">
  <property name="backdrop" type="empty"><property name="screen0" type="empty"><property name="monitorDUMMY0" type="empty">
    <property name="workspace0" type="empty"><property name="last-image" type="string" value="{}"/></property>
    <property name="workspace1" type="empty"><property name="last-image" type="string" value="{}"/></property>
  </property></property></property>
</channel>
"""


class This(XDesktop):
    title = "Xfce 4.18: xfwm4, xfdesktop, panel (X11)"
    packages = (
        *("xfwm4", "xfdesktop4", "xfce4-panel", "xfconf", "gvfs", "adwaita-icon-theme", "librsvg2-common", "qt6-gtk-platformtheme"),
        *("xserver-xorg-core", "xserver-xorg-video-dummy", "x11-xserver-utils"),
    )
    variables = {"XDG_CURRENT_DESKTOP": "XFCE", "XFCE_PANEL_MIGRATE_DEFAULT": "1"}
    manager = ("xfwm4", "--sm-client-disable")
    others = {"panel": ("xfce4-panel", "--sm-client-disable"), "desktop": ("xfdesktop", "--sm-client-disable")}
    has_outputs = True
    without = {"scale": NOT_TRIED["scale"]}
    shows = (PANEL, BACKDROP)

    def start_manager(self, session):
        folder = session.home / ".config/xfce4/xfconf/xfce-perchannel-xml"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "xfce4-desktop.xml").write_text(CHANNEL.format(WALLPAPER, WALLPAPER))
        super().start_manager(session)
