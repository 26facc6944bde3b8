"""What stands on the desktop while it is asked about."""

import os
import pathlib
import re
import signal
import time

import buses
from picture import Box
from session import Failure, eventually, need

SIZES = {"nearest": (170, 170), "radar": (364, 170), "board": (364, 382)}
MAGENTA = 0xFF00FF
LINE = 4  # Of a frame, on both sides together.
GRID = 8  # To which a dropped widget snaps.


def is_near(size, other):
    return all(abs(one - two) <= LINE for one, two in zip(size, other))


class Scene:
    def __init__(self, session, desktop, world):
        self.session, self.desktop = session, desktop
        self.asked_file = pathlib.Path(world) / "asked"
        self.typed_file = session.home / "typed"
        self.places = {}  # Where the widgets stand; empty when they are not all to be seen.
        self.editor_count = 0

    # The widgets

    def start_widgets(self):
        """Until they have their first sky, or the host says that there is no place for them."""
        self.bare = self.session.settled()
        self.desktop.start_widgets(self.session)
        eventually(lambda: "/v2/point" in self.asked() or self.refusals(), 30)
        if not self.refusals() and "/v2/point" not in self.asked():
            raise Failure(f"the feed is not asked: {self.session.words_of('host')[-300:]}")
        time.sleep(1)
        self.picture = self.session.settled()
        self.find_widgets()

    def refusals(self):
        """What the host says where a desktop gives widgets no place."""
        return [line for line in self.session.words_of("host").splitlines() if "no place below its windows" in line]

    def find_widgets(self):
        """By what has changed since there were none. A window manager may have drawn a line around them."""
        self.changes = self.picture.changes(self.bare)
        found = {name: [box for box in self.changes if is_near(box.size, size)] for name, size in self.desktop.sizes(SIZES).items()}
        if all(len(places) == 1 for places in found.values()):
            self.places = {name: places[0] for name, places in found.items()}

    def look(self):
        """Takes what is to be seen now as what the widgets look like, and where they stand."""
        self.picture = self.session.settled()
        self.find_widgets()

    def seen(self, name, across=0):
        """How much of a widget's picture is there, from 0 to 1, or so far to the right. Its time may have changed, its card has
        not."""
        place = self.places[name]
        whole = Box(0, 0, *place.size)
        now = place.moved(across, 0)
        picture = self.session.picture()
        return picture.crop(now).likeness(self.picture.crop(place), whole) if now.inside(picture.whole) == now else 0

    def all_seen(self, limit=5, across=0):
        """Names of the widgets that do not come to be seen."""
        eventually(lambda: all(self.seen(name, across) > 0.9 for name in self.places), limit)
        return [name for name in self.places if self.seen(name, across) <= 0.9]

    def expect_all_seen(self, when):
        if hidden := self.all_seen():
            raise Failure(f"{', '.join(hidden)} not to be seen {when}")

    def row(self, number, from_right=60):
        """The middle of a row of the board, near its right end."""
        board = self.places["board"]
        return board.right - from_right, board.top + (290, 307, 325, 342, 360)[number]

    # The companion

    def companion_process(self):
        """Its number; None where none runs."""
        bus = "org.freedesktop.DBus"
        answer = buses.call(self.session, bus, "/", f"{bus}.GetConnectionUnixProcessID", "org.skyvane.Companion")
        found = re.search(r"uint32 (\d+)", answer)
        return int(found.group(1)) if found else None

    def end_companion(self):
        """Again when xdg-open, which may have waited for it, takes its end for a failure and it is started once more."""
        while process := self.companion_process():
            os.kill(process, signal.SIGTERM)
            time.sleep(1)
        self.session.settled(3)

    # The services

    def asked(self):
        return self.asked_file.read_text()

    # An ordinary window

    def open_editor(self, extent):
        """Until it covers what it is to cover. The name it is opened by."""
        self.editor_count += 1
        name = f"editor-{self.editor_count}"
        here = pathlib.Path(__file__).parent
        title = "Editor, wide" if extent == "wide" else "Editor"
        self.session.start(name, str(here / "editor"), str(self.typed_file), title, extent)
        need(lambda: (where := self.editor_extent()) and where.size[0] >= 1290, f"the {extent} editor is not on the screen")
        self.session.settled(3)
        return name

    def editor_extent(self):
        return self.session.picture().extent(MAGENTA)

    def close_editor(self, name):
        self.session.stop(name)
        eventually(lambda: not self.editor_extent(), 5)

    def tidy(self):
        """Leaves nothing but the widgets."""
        for name in [name for name in self.session.processes if name.startswith("editor-")]:
            self.close_editor(name)
        self.end_companion()

    def typed(self):
        return self.typed_file.read_text() if self.typed_file.exists() else ""

    def is_typed(self, letter):
        """Whether that key reaches the editor."""
        before = self.typed().count(letter)
        self.session.press_key(letter)
        return bool(eventually(lambda: self.typed().count(letter) > before, 4))

    def snapped(self, box):
        """Where a widget that is dropped there comes to stand, far from others."""
        area = self.desktop.work_area(self.session)
        left, top = (start + GRID * round((edge - start) / GRID) for edge, start in ((box.left, area.left), (box.top, area.top)))
        return Box(left, top, left + box.size[0], top + box.size[1])
