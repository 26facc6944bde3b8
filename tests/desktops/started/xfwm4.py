from started.desktop import XDesktop


class This(XDesktop):
    title = "xfwm4 4.18 alone (X11)"
    packages = ("xfwm4",)
    has_services = False
    manager = ("xfwm4", "--sm-client-disable")
