"""What an X server and its window manager say of windows."""

import re
import time
from typing import NamedTuple

from picture import Box


class Window(NamedTuple):
    id: str
    owner: str  # The program's class.
    title: str
    types: list
    states: list


def property_of(session, name, window=None):
    """The words behind the name, as xprop prints them."""
    where = ["-id", window] if window else ["-root"]
    found = re.search(r"(?:=|#) (.*)", session.run("xprop", *where, name))
    return found.group(1) if found else ""


def ids(session, name, window=None):
    return re.findall(r"0x[0-9a-f]+", property_of(session, name, window))


def is_managed(session):
    return bool(ids(session, "_NET_SUPPORTING_WM_CHECK"))


def atoms(session, name, window=None):
    return [atom.strip() for atom in property_of(session, name, window).split(",") if atom.strip()]


def clients(session):
    """All that the window manager manages, the lowest first."""
    return [
        Window(
            id=window,
            owner=property_of(session, "WM_CLASS", window),
            title=property_of(session, "_NET_WM_NAME", window),
            types=atoms(session, "_NET_WM_WINDOW_TYPE", window),
            states=atoms(session, "_NET_WM_STATE", window),
        )
        for window in ids(session, "_NET_CLIENT_LIST_STACKING")
    ]


def widgets(session):
    return [window for window in clients(session) if "skyvane-host" in window.owner]


def frames(session):
    found = []
    for window in widgets(session):
        text = session.run("xwininfo", "-id", window.id)
        left, top, width, height = (
            int(re.search(rf"{name}:\s+(-?\d+)", text).group(1))
            for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        )
        found.append(Box(left, top, left + width, top + height))
    return found


def active_title(session):
    active = [window for window in ids(session, "_NET_ACTIVE_WINDOW") if window != "0x0"]
    return property_of(session, "_NET_WM_NAME", active[0]).strip('"') if active else ""


def show_desktop(session, is_shown):
    session.run("wmctrl", "-k", "on" if is_shown else "off")
    time.sleep(0.5)


def go_to_workspace(session, number):
    """Counted from 0."""
    session.run("wmctrl", "-s", str(number))
    time.sleep(0.5)


def work_area(session):
    """Left, top, width and height of the first workspace's."""
    return [int(word) for word in property_of(session, "_NET_WORKAREA").split(",")[:4]]


def supports(session, *names):
    supported = atoms(session, "_NET_SUPPORTED")
    return all(name in supported for name in names)
