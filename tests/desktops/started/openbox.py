from started.desktop import XDesktop


class This(XDesktop):
    title = "openbox 3.6 (X11)"
    packages = ("openbox",)
    has_services = False
    manager = ("openbox", "--sm-disable", "--config-file", "/etc/xdg/openbox/rc.xml")
