from started import gnome
from started.desktop import NOT_TRIED, NestedDesktop


class This(NestedDesktop):
    title = "GNOME 43 (Wayland)"
    packages = gnome.PACKAGES
    variables = gnome.VARIABLES | {"MUTTER_DEBUG_DUMMY_MODE_SPECS": "1600x1000"}
    without = NOT_TRIED | {
        "restart": "GNOME Shell that no service manager started, as here, ends with its Xwayland: Connection to xwayland lost"
    }
    compositor = ("gnome-shell", "--nested", "--wayland")

    def prepare(self, session):
        gnome.write_settings(session)

    def start_compositor(self, session):
        super().start_compositor(session)
        gnome.leave_overview(session)
