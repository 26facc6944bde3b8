from started import gnome
from started.desktop import XDesktop


class This(XDesktop):
    title = "GNOME 43 (X11)"
    packages = gnome.PACKAGES
    variables = gnome.VARIABLES | {"XDG_SESSION_TYPE": "x11"}
    manager = ("gnome-shell", "--x11")

    def start_manager(self, session):
        gnome.write_settings(session)
        super().start_manager(session)
        gnome.leave_overview(session)
