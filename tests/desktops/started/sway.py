import json

from picture import Box
from started.desktop import NOT_TRIED, NestedDesktop

RULES = """xwayland enable
output * mode 1600x1000
output * bg #1d3440 solid_color
for_window [title="^Editor, wide$"] floating enable, resize set 1300 600, move position 150 150
for_window [app_id="(?i)skyvane"] floating enable
"""


class This(NestedDesktop):
    title = "sway 1.7 (Wayland)"
    packages = ("sway", "xwayland", "qt6-wayland")
    has_services = False
    may_give_no_place = True
    variables = {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman", "WLR_X11_OUTPUTS": "1", "XDG_CURRENT_DESKTOP": "sway"}
    without = NOT_TRIED | {"shown desktop": "sway cannot show the desktop"}

    def rules(self, _session):
        return RULES

    def prepare(self, session):
        rules = session.home / "sway.config"
        rules.write_text(self.rules(session))
        session.environment["SWAYSOCK"] = str(session.run_folder / "sway.sock")
        self.compositor = ("sway", "--config", str(rules))

    def tell(self, session, *words):
        answer = session.run("swaymsg", "--raw", *words)
        return json.loads(answer) if answer else None

    def work_area(self, session):
        rect = self.tell(session, "--type", "get_workspaces")[0]["rect"]
        return Box(rect["x"], rect["y"], rect["x"] + rect["width"], rect["y"] + rect["height"])

    def listed(self, session):
        """A window of its tree is what task bars and switchers are told."""
        tree = json.dumps(self.tell(session, "--type", "get_tree"))
        return ["a widget is one of the windows of get_tree"] if "skyvane-host" in tree else []

    def go_to_workspace(self, session, number):
        self.tell(session, "workspace", str(number + 1))
