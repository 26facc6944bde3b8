from session import WALLPAPER
from started.desktop import PANEL, BACKDROP, XDesktop


class This(XDesktop):
    title = "Plasma 5.27: kwin_x11, plasmashell (X11)"
    packages = ("kwin-x11", "plasma-workspace", "plasma-desktop", "breeze-icon-theme", "libgl1-mesa-dri")
    variables = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}
    manager = ("kwin_x11",)
    others = {"panel": ("plasmashell",)}
    shows = (PANEL, BACKDROP)

    def start_manager(self, session):
        settings = session.home / ".config/kwinrc"
        settings.parent.mkdir(exist_ok=True)
        settings.write_text("[Desktops]\nNumber=2\nRows=1\n")
        super().start_manager(session)

    def start(self, session):
        super().start(session)
        session.run("plasma-apply-wallpaperimage", str(WALLPAPER))
        session.settled(20, pause=2)
