import os
import signal

import buses
from session import Failure, need
from started import gnome, gnome48

UUID = "skyvane@skyvane.org"
LISTED = """
const Meta = imports.gi.Meta;
const listed = global.display.get_tab_list(Meta.TabList.NORMAL_ALL, null);
const widgets = global.get_window_actors().map(actor => actor.meta_window).filter(window => window.title?.startsWith('skyvane:'));
widgets.filter(window => listed.includes(window) || !window.skip_taskbar || window.demands_attention).map(window => window.title)
    .concat(widgets.length === 3 ? [] : [`${widgets.length} widgets`]).join(' ')
"""


class This(gnome48.This):
    title = "GNOME 48 with our extension (Wayland)"
    compositor = (*gnome48.This.compositor, "--unsafe-mode")  # In which it runs what the bench asks of it.

    def prepare(self, session):
        """The bench begins with a bare desktop and starts the widgets as a log-in does: the companion's switch is off."""
        super().prepare(session)
        file = session.home / ".config/glib-2.0/settings/keyfile"
        enabled = f"disable-user-extensions=false\nenabled-extensions=['{UUID}']"
        file.write_text(file.read_text().replace("disable-user-extensions=true", enabled))
        entry = session.home / ".config/autostart/skyvane-host.desktop"
        entry.parent.mkdir(parents=True, exist_ok=True)
        entry.write_text("[Desktop Entry]\nHidden=true\n")

    def listed(self, session):
        """Told by the shell itself, which knows its Wayland windows."""
        answer = buses.call(session, gnome.SHELL, "/org/gnome/Shell", "org.gnome.Shell.Eval", LISTED)
        if not answer.startswith("(true"):
            raise Failure(f"the shell does not run a script: {answer}")
        words = answer.split("'")[1].strip('"')
        return [words] if words else []

    def restart(self, session):
        """Of the host, which the shell has started: the shell's own end is that of the session."""
        before = self.host(session)
        os.kill(before, signal.SIGKILL)
        need(lambda: self.host(session) not in (0, before), "the host is not started again")

    @staticmethod
    def host(session):
        bus = "org.freedesktop.DBus"
        answer = buses.call(session, bus, "/", f"{bus}.GetConnectionUnixProcessID", "org.skyvane.Host")
        return int(answer.split()[1].rstrip(",)")) if "uint32" in answer else 0
