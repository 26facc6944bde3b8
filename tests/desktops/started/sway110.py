from started import sway, waybar


class This(sway.This):
    title = "sway 1.10, waybar (Wayland)"
    suite = "trixie"
    packages = (*sway.This.packages, "waybar", "swaybg")
    has_services = True

    def start_compositor(self, session):
        super().start_compositor(session)
        waybar.start(session)
