import os
import pathlib
import signal

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

    def restart(self, session):
        """Of the X server that the widgets are shown through; the shell's end is that of the session."""
        for status in pathlib.Path("/proc").glob("[0-9]*/comm"):
            if status.read_text() == "Xwayland\n":
                os.kill(int(status.parent.name), signal.SIGKILL)
