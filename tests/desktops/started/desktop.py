"""What the bench has to know of a desktop. A file beside this one is one desktop: a class of it named This."""

import pathlib
import re
import time

import buses
import x11
from picture import Box
from session import HEIGHT, WIDTH, Failure, need

LISTED_WITHOUT = ("_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER")
DEMANDING = "_NET_WM_STATE_DEMANDS_ATTENTION"
PANEL, BACKDROP = "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_WINDOW_TYPE_DESKTOP"
NOT_TRIED = {"scale": "not tried", "screens": "not tried"}
X_SOCKETS = pathlib.Path("/tmp/.X11-unix")


class Desktop:
    title = ""
    suite = "bookworm"  # The Debian whose packages it comes from.
    packages = ()
    variables = {}  # That a log-in to it sets.
    has_services = True  # Its own, on the message bus.
    tiles = False  # Its windows stand side by side.
    may_give_no_place = False  # For windows below others, to builds that do not know how to ask for it.
    flaws = {}  # What is the desktop's own fault, by behaviour: why, in the words of its own that show it.
    without = NOT_TRIED  # What it cannot be asked, by behaviour: why.

    def start(self, session):
        """Until windows can be opened on it."""
        raise NotImplementedError

    def start_widgets(self, session):
        session.start("host", "skyvane-host", "--supervise")  # As the log-in does.

    def sizes(self, own):
        """Of the widgets, whose own these are."""
        return own

    def work_area(self, session):
        """The room that panels leave."""
        left, top, width, height = x11.work_area(session)
        return Box(left, top, left + width, top + height)

    def show_desktop(self, session, is_shown):
        x11.show_desktop(session, is_shown)

    def go_to_workspace(self, session, number):
        x11.go_to_workspace(session, number)

    def listed(self, session):
        """Words about every widget that a task bar, pager or switcher would show, or that asks for attention. A window manager keeps
        the states it knows."""
        words = []
        without = [state for state in LISTED_WITHOUT if x11.supports(session, state)]
        for window in x11.widgets(session):
            words += [f"{window.title} lacks {state}" for state in without if state not in window.states]
            if DEMANDING in window.states:
                words.append(f"{window.title} has {DEMANDING}")
        return words

    def restart(self, session):
        """Ends what manages the windows as a crash would, and has it started again as the session would."""
        raise NotImplementedError

    # What is asked only of those that are not without it.

    background = 0  # The colour, 0xRRGGBB, of all that neither window nor panel covers.

    def change_scale(self, session, factor):
        raise NotImplementedError

    def add_screen(self, session):
        """A second one, to the right of the first."""
        raise NotImplementedError

    def remove_screen(self, session):
        """The second one."""
        raise NotImplementedError

    def switch_screen(self, session, is_on):
        """The first one."""
        raise NotImplementedError

    def resize_screen(self, session, is_small):
        """The first one."""
        raise NotImplementedError

    def swap_screens(self, session, is_swapped):
        """Puts the first one to the right of the second. How far that moves what it shows in the picture."""
        raise NotImplementedError

    def sleep_screens(self, session):
        """Off, as after some minutes without the user, and on again."""
        raise NotImplementedError

    def frames(self, session):
        """Of all widgets; None where the window system tells no places."""
        return x11.frames(session)


class XDesktop(Desktop):
    """On an X server of its own."""

    manager = ()  # The window manager's command.
    others = {}  # Panels and the like: the log's name, the command.
    shows = ()  # Types of windows that those have.
    has_outputs = False  # Screens that come and go.

    def start(self, session):
        session.start_x_server(self.has_outputs)
        if self.has_outputs:
            self.add_output(session, "DUMMY0", f"{WIDTH}x{HEIGHT}", "--primary", "--pos", "0x0")
        buses.tell_services(session)
        self.start_manager(session)
        for name, command in self.others.items():
            session.start(name, *command)
        need(lambda: set(self.shows) <= {word for window in x11.clients(session) for word in window.types}, "no panel", 40)
        session.settled(20, pause=2 if self.others else 0.3)

    def start_manager(self, session):
        session.start("manager", *self.manager)
        need(lambda: x11.is_managed(session), "no window manager")

    def restart(self, session):
        session.kill("manager")
        self.start_manager(session)

    @staticmethod
    def add_output(session, name, mode, *words):
        session.run("xrandr", "--output", name, "--mode", mode, *words)

    def add_screen(self, session):
        session.run("xrandr", "--addmode", "DUMMY1", "1280x800")
        self.add_output(session, "DUMMY1", "1280x800", "--pos", f"{WIDTH}x0")

    def remove_screen(self, session):
        session.run("xrandr", "--output", "DUMMY1", "--off")

    def switch_screen(self, session, is_on):
        if is_on:
            self.add_output(session, "DUMMY0", f"{WIDTH}x{HEIGHT}", "--primary", "--pos", "0x0")
        else:
            session.run("xrandr", "--output", "DUMMY0", "--off")

    def swap_screens(self, session, is_swapped):
        first, second = ("1280x0", "0x0") if is_swapped else ("0x0", f"{WIDTH}x0")
        session.run("xrandr", "--output", "DUMMY0", "--pos", first, "--output", "DUMMY1", "--pos", second)
        return 1280

    def sleep_screens(self, session):
        session.run("xset", "dpms", "force", "off")
        time.sleep(2)
        session.run("xset", "dpms", "force", "on")

    def resize_screen(self, session, is_small):
        self.add_output(session, "DUMMY0", "1280x800" if is_small else f"{WIDTH}x{HEIGHT}", "--pos", "0x0")


class NestedDesktop(Desktop):
    """A Wayland compositor in a window that covers an X server's screen."""

    compositor = ()
    is_wayland = True

    def prepare(self, session):
        """Files that it reads at its start."""

    def start(self, session):
        session.start_x_server()
        self.prepare(session)
        self.start_compositor(session)

    def start_compositor(self, session):
        before = self.sockets(session)
        session.environment.pop("WAYLAND_DISPLAY", None)
        session.start("compositor", *self.compositor, DISPLAY=session.outside["DISPLAY"])
        found = need(lambda: self.sockets(session) - before, f"no compositor: {session.words_of('compositor')[-300:]}")
        session.environment["WAYLAND_DISPLAY"] = sorted(found)[0]
        session.environment["XDG_SESSION_TYPE"] = "wayland"
        need(lambda: any(session.picture().pixels), "the compositor shows nothing", 40)
        self.meet_xwayland(session)
        buses.tell_services(session)

    @staticmethod
    def meet_xwayland(session):
        """Its display, the newest, is that of programs that want one."""
        displays = [path.name[1:] for path in sorted(X_SOCKETS.glob("X*"), key=lambda path: path.stat().st_mtime)]
        others = [display for display in displays if f":{display}" != session.outside["DISPLAY"]]
        if others:
            session.environment["DISPLAY"] = f":{others[-1]}"
        for file in (*session.run_folder.glob(".mutter-Xwaylandauth.*"), *session.run_folder.glob("xauth_*")):
            session.environment["XAUTHORITY"] = str(file)

    @staticmethod
    def put_second_screen_aside(session):
        """Each screen of the compositor is a window, and they come up on top of each other."""
        text = session.run("xwininfo", "-root", "-children", DISPLAY=session.outside["DISPLAY"])
        windows = sorted(int(window, 16) for window in re.findall(r"(0x[0-9a-f]+) .* \d{3,}x\d{3,}\+", text))
        if len(windows) != 2:
            raise Failure(f"the compositor has {len(windows)} screens")
        session.hand("windowmove", windows[-1], WIDTH, 0)

    def restart(self, session):
        session.kill("compositor")
        for name in self.sockets(session):
            (session.run_folder / name).unlink()
        self.start_compositor(session)

    @staticmethod
    def sockets(session):
        return {path.name for path in session.run_folder.glob("wayland-*") if not path.suffix}
