import time

import buses
from session import need
from started import plasma6

SHELL = "org.kde.plasmashell"
PLACED = """
const desktop = desktops()[0];
desktop.addWidget("org.skyvane.widgets.nearest", 1080, 36, 170, 170);
desktop.addWidget("org.skyvane.widgets.radar", 1080, 252, 364, 170);
desktop.addWidget("org.skyvane.widgets.skyboard", 1080, 468, 364, 382);
"""
GRID = 16  # Of Plasma's desktop, to which it rounds places and sizes.


class This(plasma6.This):
    title = "Plasma 6.3 with our applets (Wayland)"
    variables = plasma6.This.variables | {"QML_IMPORT_PATH": "/usr/local/lib/x86_64-linux-gnu/qt6/qml"}
    without = plasma6.This.without | {
        "place": "Plasma places its applets",
        "drag": "Plasma moves its applets in its edit mode",
        "keyboard": "Plasma gives its applets the keyboard",
        "menu": "it is Plasma's own, as wide as the name in it",
        "rest": "Plasma's shell wakes for its own clock",
    }

    def start_widgets(self, session):
        """As the user does it in edit mode. The host that the log-in starts leaves them to the shell."""
        need(lambda: buses.call(session, SHELL, "/PlasmaShell", "org.kde.PlasmaShell.evaluateScript", PLACED), "no applets", 5)
        time.sleep(3)
        super().start_widgets(session)

    def sizes(self, own):
        return {name: tuple(-(-length // GRID) * GRID for length in size) for name, size in own.items()}

    def listed(self, session):
        return ["a widget is a window"] if "skyvane" in self.told_by(session, plasma6.LISTED) else []

    def restart(self, session):
        """Of the shell, which shows them."""
        session.kill("panel")
        session.start("panel", "plasmashell")
        time.sleep(10)
