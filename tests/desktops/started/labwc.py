import time

from picture import Box
from session import HEIGHT, WIDTH, need
from started import waybar
from started.desktop import NestedDesktop

RULES = """<labwc_config>
  <desktops number="2"/>
  <keyboard>
    <keybind key="W-1"><action name="GoToDesktop" to="1"/></keybind>
    <keybind key="W-2"><action name="GoToDesktop" to="2"/></keybind>
  </keyboard>
</labwc_config>
"""


class This(NestedDesktop):
    title = "labwc 0.8, waybar (Wayland)"
    suite = "trixie"
    packages = ("labwc", "waybar", "xwayland", "wlr-randr", "wlrctl", "qt6-wayland")
    variables = {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman", "WLR_X11_OUTPUTS": "2", "XDG_CURRENT_DESKTOP": "labwc:wlroots"}
    without = {"shown desktop": "labwc 0.8 cannot show the desktop"}
    compositor = ("labwc",)

    def set_output(self, session, name, *words):
        session.run("wlr-randr", "--output", name, *words)

    def change_scale(self, session, factor):
        self.set_output(session, "X11-1", "--scale", str(factor))

    def add_screen(self, session):
        self.set_output(session, "X11-2", "--on", "--pos", f"{WIDTH},0")
        self.put_second_screen_aside(session)

    def remove_screen(self, session):
        self.set_output(session, "X11-2", "--off")

    def switch_screen(self, session, is_on):
        self.set_output(session, "X11-1", "--on" if is_on else "--off")

    def resize_screen(self, session, is_small):
        self.set_output(session, "X11-1", "--custom-mode", "1280x800" if is_small else f"{WIDTH}x{HEIGHT}")

    def swap_screens(self, session, is_swapped):
        """Each is a window of the nested compositor, which stays."""
        first, second = (1280, 0) if is_swapped else (0, WIDTH)
        self.set_output(session, "X11-1", "--pos", f"{first},0", "--output", "X11-2", "--pos", f"{second},0")
        return 0

    def sleep_screens(self, session):
        for word in ("--off", "--on"):
            self.set_output(session, "X11-1", word)
            time.sleep(2)

    def frames(self, session):
        return None

    def prepare(self, session):
        folder = session.home / ".config/labwc"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "rc.xml").write_text(RULES)

    def start_compositor(self, session):
        super().start_compositor(session)
        need(lambda: "X11-2" in session.run("wlr-randr"), "no screens")
        self.remove_screen(session)
        self.resize_screen(session, False)
        waybar.start(session)

    def work_area(self, session):
        return Box(0, waybar.HEIGHT, WIDTH, HEIGHT)

    def listed(self, session):
        return [line for line in session.run("wlrctl", "toplevel", "list").splitlines() if "skyvane-host" in line]

    def go_to_workspace(self, session, number):
        session.press_key(f"super+{number + 1}")
