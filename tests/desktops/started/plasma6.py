import re
import time

import buses
from picture import Box
from session import WALLPAPER, Failure
from started.desktop import NestedDesktop

AREA = """
const area = workspace.clientArea(KWin.MaximizeArea, workspace.screens[0], workspace.desktops[0]);
print("AREA", area.x, area.y, area.width, area.height);
"""
LISTED = """
for (const window of workspace.windowList())
    print("WINDOW", window.resourceClass, window.skipTaskbar, window.skipPager, window.skipSwitcher, window.demandsAttention,
        window.caption);
"""


class This(NestedDesktop):
    title = "Plasma 6.3 (Wayland)"
    suite = "trixie"
    packages = ("kwin-wayland", "plasma-workspace", "plasma-desktop", "breeze-icon-theme", "xwayland", "libgl1-mesa-dri", "qt6-wayland")
    variables = {
        "XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "6", "KWIN_COMPOSE": "Q",
        "XDG_MENU_PREFIX": "plasma-", "XDG_CONFIG_DIRS": "/etc/xdg", "QT_LOGGING_RULES": "js.debug=true;kwin_scripting.debug=true",
    }  # fmt: skip
    compositor = ("kwin_wayland", "--width", "1600", "--height", "1000", "--xwayland", "--no-lockscreen", "--no-global-shortcuts")

    def prepare(self, session):
        settings = session.home / ".config/kwinrc"
        settings.parent.mkdir(exist_ok=True)
        settings.write_text("[Desktops]\nNumber=2\nRows=1\n")

    def start_compositor(self, session):
        super().start_compositor(session)
        session.start("panel", "plasmashell")
        time.sleep(15)
        session.run("plasma-apply-wallpaperimage", str(WALLPAPER))
        session.settled(20, pause=2)

    def told_by(self, session, script):
        """What a script in the window manager prints."""
        file = session.home / f"script-{time.monotonic_ns()}.js"
        file.write_text(script)
        before = len(session.words_of("compositor"))
        answer = buses.call(session, "org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting.loadScript", str(file))
        number = re.search(r"\d+", answer)
        if not number:
            raise Failure(f"the window manager takes no script: {answer}")
        buses.call(session, "org.kde.KWin", f"/Scripting/Script{number.group()}", "org.kde.kwin.Script.run")
        time.sleep(0.5)
        return session.words_of("compositor")[before:]

    def work_area(self, session):
        left, top, width, height = map(int, re.search(r"AREA (\S+) (\S+) (\S+) (\S+)", self.told_by(session, AREA)).groups())
        return Box(left, top, left + width, top + height)

    def listed(self, session):
        words = re.findall(r"WINDOW \S*skyvane-host (\S+) (\S+) (\S+) (\S+) (.*)", self.told_by(session, LISTED))
        if not words:
            return ["the window manager knows no widget"]
        return [" ".join(window) for window in words if window[:4] != ("true", "true", "true", "false")]

    def show_desktop(self, session, is_shown):
        """As a key does. What a program asks for over the bus holds as long as the program is there."""
        self.told_by(session, "workspace.slotToggleShowDesktop();")
        time.sleep(1)

    def go_to_workspace(self, session, number):
        buses.call(session, "org.kde.KWin", "/KWin", "org.kde.KWin.setCurrentDesktop", str(number + 1))
        time.sleep(1)
