import re

from picture import Box
from started.desktop import NOT_TRIED, XDesktop

AREA = "local area = screen[1].workarea; return string.format('%d %d %d %d', area.x, area.y, area.width, area.height)"


class This(XDesktop):
    title = "awesome 4.3 (X11)"
    packages = ("awesome",)
    has_services = False
    variables = {"XDG_CURRENT_DESKTOP": "awesome"}
    manager = ("awesome",)
    without = NOT_TRIED | {"shown desktop": "awesome cannot show the desktop"}

    def work_area(self, session):
        left, top, width, height = map(int, re.findall(r"\d+", session.run("awesome-client", AREA)))
        return Box(left, top, left + width, top + height)
