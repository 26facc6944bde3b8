from started.desktop import XDesktop


class This(XDesktop):
    title = "awesome 4.3 (X11)"
    packages = ("awesome",)
    has_services = False
    variables = {"XDG_CURRENT_DESKTOP": "awesome"}
    manager = ("awesome",)
    without = {"shown desktop": "awesome cannot show the desktop"}
