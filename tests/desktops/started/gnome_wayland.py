from started import gnome
from started.desktop import NestedDesktop


class This(NestedDesktop):
    title = "GNOME 43 (Wayland)"
    packages = gnome.PACKAGES
    variables = gnome.VARIABLES | {"MUTTER_DEBUG_DUMMY_MODE_SPECS": "1600x1000"}
    compositor = ("gnome-shell", "--nested", "--wayland")

    def prepare(self, session):
        gnome.write_settings(session)

    def start_compositor(self, session):
        super().start_compositor(session)
        gnome.leave_overview(session)
