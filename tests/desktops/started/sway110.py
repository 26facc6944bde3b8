import time

from picture import Picture
from session import HEIGHT, WIDTH, need
from started import sway, waybar


class This(sway.This):
    title = "sway 1.10, waybar (Wayland)"
    suite = "trixie"
    packages = (*sway.This.packages, "waybar", "swaybg")
    has_services = True
    background = 0x1D3440

    without = {"shown desktop": sway.This.without["shown desktop"]}
    def rules(self, session):
        """Of one colour by a picture: a single pixel that is scaled fades."""
        file = session.home / "background.png"
        Picture(WIDTH, HEIGHT, self.background.to_bytes(4, "little") * (WIDTH * HEIGHT)).write(file)
        return sway.RULES.replace("#1d3440 solid_color", f"{file} stretch")

    def change_scale(self, session, factor):
        self.tell(session, "output", "X11-1", "scale", str(factor))

    def add_screen(self, session):
        self.tell(session, "create_output")
        need(lambda: len(self.tell(session, "--type", "get_outputs")) == 2, "no second screen")
        self.put_second_screen_aside(session)

    def frames(self, session):
        return None

    def swap_screens(self, session, is_swapped):
        """Each is a window of the nested compositor, which stays."""
        first, second = (1280, 0) if is_swapped else (0, WIDTH)
        self.tell(session, "output", "X11-1", "pos", str(first), "0")
        self.tell(session, "output", "X11-2", "pos", str(second), "0")
        return 0

    def sleep_screens(self, session):
        self.tell(session, "output", "*", "power", "off")
        time.sleep(2)
        self.tell(session, "output", "*", "power", "on")

    def resize_screen(self, session, is_small):
        self.tell(session, "output", "X11-1", "mode", "1280x800" if is_small else "1600x1000")

    def remove_screen(self, session):
        self.tell(session, "output", "X11-2", "disable")

    def switch_screen(self, session, is_on):
        self.tell(session, "output", "X11-1", "enable" if is_on else "disable")

    def start_compositor(self, session):
        super().start_compositor(session)
        waybar.start(session)
