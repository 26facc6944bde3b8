from picture import Box
from session import HEIGHT, WIDTH
from started.desktop import NOT_TRIED, XDesktop

RULES = """# i3 config file (v4)
font pango:monospace 8
for_window [title="^Editor, wide$"] floating enable, resize set 1300 600, move position 150 150
for_window [class="skyvane"] floating enable
"""


class This(XDesktop):
    title = "i3 4.22 (X11)"
    packages = ("i3-wm",)
    has_services = False
    without = NOT_TRIED | {"shown desktop": "i3 cannot show the desktop"}

    def start_manager(self, session):
        rules = session.home / "i3.config"
        rules.write_text(RULES)
        self.manager = ("i3", "-c", str(rules))
        super().start_manager(session)

    def go_to_workspace(self, session, number):
        session.run("i3-msg", "workspace", str(number + 1))

    def work_area(self, session):
        """It has no bar, and says nothing of one."""
        return Box(0, 0, WIDTH, HEIGHT)
