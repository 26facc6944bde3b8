from picture import Box
from session import HEIGHT, WIDTH
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
    variables = {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman", "WLR_X11_OUTPUTS": "1", "XDG_CURRENT_DESKTOP": "labwc:wlroots"}
    without = {"screens": "not tried", "shown desktop": "labwc 0.8 cannot show the desktop"}
    compositor = ("labwc",)

    def change_scale(self, session, factor):
        session.run("wlr-randr", "--output", "X11-1", "--scale", str(factor))

    def prepare(self, session):
        folder = session.home / ".config/labwc"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "rc.xml").write_text(RULES)

    def start_compositor(self, session):
        super().start_compositor(session)
        session.run("wlr-randr", "--output", "X11-1", "--custom-mode", f"{WIDTH}x{HEIGHT}")
        waybar.start(session)

    def work_area(self, session):
        return Box(0, waybar.HEIGHT, WIDTH, HEIGHT)

    def listed(self, session):
        return [line for line in session.run("wlrctl", "toplevel", "list").splitlines() if "skyvane-host" in line]

    def go_to_workspace(self, session, number):
        session.press_key(f"super+{number + 1}")
