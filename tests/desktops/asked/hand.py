"""What the user's hand does to the widgets."""

import time

from scene import MAGENTA
from session import Failure, eventually, need

SHADOW = 24  # That a compositor draws around a menu.
HEXES = ("407a2c", "4ca9e1", "40663d", "3c65cf", "406c1b")  # Of the board's rows.


def focus(scene):
    """A drag and a click leave the keyboard to the window that one types in."""
    editor = scene.open_editor("wide")
    if not scene.is_typed("a"):
        raise Failure("the window that just opened has no keyboard")
    left, top = scene.row(1)
    there, beside = (left, top), (left - 32, top)
    taken = []
    scene.session.click(there, button=2)
    if not scene.is_typed("b"):
        taken.append("a click of the middle button")
        scene.session.click(scene.editor_extent().middle)
    scene.session.drag(there, beside, steps=8)
    if not scene.is_typed("c"):
        taken.append("a drag")
    scene.close_editor(editor)
    scene.look()
    if taken:
        raise Failure(f"{' and '.join(taken)} takes the keyboard from the window that one types in")


def opened(scene, row, limit=15):
    """Whether the companion asks for the photo of the aircraft in that row."""
    return eventually(lambda: f"/hex/{HEXES[row]}" in scene.asked().lower(), limit)


def link(scene):
    """A click on a row opens that aircraft in the companion, which was not running."""
    scene.session.click(scene.row(1))
    if not opened(scene, 1):
        raise Failure("a click on the second row opens nothing")
    scene.session.settled(5)
    scene.session.keep("companion")
    scene.end_companion()


def front(scene):
    """A click on another row brings the companion to the front from behind a window."""
    scene.session.start("companion", "skyvane", "skyvane://aircraft/" + HEXES[0])
    if not opened(scene, 0):
        raise Failure("the companion does not start")
    scene.session.settled(5)
    editor = scene.open_editor("wide")
    time.sleep(1)
    extent = scene.editor_extent()
    before = scene.session.picture().share_of(MAGENTA, extent)
    if before < 0.9:
        raise Failure(f"a new window is not in front: {before:.0%} of it to be seen")
    scene.session.click(scene.row(3))
    try:
        if not opened(scene, 3):
            raise Failure("a click on the fourth row opens nothing")
        if not eventually(lambda: scene.session.picture().share_of(MAGENTA, extent) < before - 0.2, 5):
            raise Failure("the companion stays behind the window")
    finally:
        scene.session.keep("front")
        scene.end_companion()
        scene.close_editor(editor)


def keyboard(scene):
    """The command `skyvane-host focus` gives the keyboard to the widgets, Tab leads from link to link, and Enter opens one. The
    window that one clicks then has the keyboard again."""
    editor = scene.open_editor("wide")
    extent = scene.editor_extent()
    before = scene.session.picture().share_of(MAGENTA, extent)
    scene.session.run("skyvane-host", "focus")
    time.sleep(1)
    scene.session.press_key("Tab", "Tab")
    scene.session.keep("keyboard")
    scene.session.press_key("Return")
    try:
        if not eventually(lambda: scene.session.picture().share_of(MAGENTA, extent) < before - 0.2, 15):
            raise Failure("Enter opens nothing")
        scene.session.settled(5)
        scene.end_companion()
        scene.session.click(extent.middle)
        if not scene.is_typed("d"):
            raise Failure("the keyboard does not come back")
    finally:
        scene.end_companion()
        scene.close_editor(editor)
    scene.expect_all_seen("afterwards")


def drag(scene):
    """A widget follows the pointer, and stands where it is dropped, on its grid."""
    box = scene.places["nearest"]
    across, down = -1008, 402
    start = box.middle
    before = scene.session.settled(3)
    words = []

    def expect(when, wanted):
        wanted = scene.snapped(wanted)
        changes = lambda: scene.session.picture().changes(before)  # noqa: E731
        stands = lambda: [change for change in changes() if change.size == box.size and change != box]  # noqa: E731
        if not eventually(lambda: stands() == [wanted], 3):
            words.append(f"{when} at {', '.join(map(str, stands())) or 'no place'}, not {wanted}")
            scene.session.keep("drag")

    half = box.moved(across // 2, down // 2)
    end = (start[0] + across, start[1] + down)
    scene.session.drag(start, end, at_half=lambda: expect("in the middle of a drag", half))
    expect("after a drag", box.moved(across, down))
    scene.look()
    if words:
        raise Failure("; ".join(words))


def open_menu(scene, place):
    """Its box on the screen."""
    before = scene.session.settled(3)
    scene.session.click(place, button=3)


    def menus():
        return [box for box in scene.session.picture().changes(before) if min(box.size) > 80]

    found = need(menus, "no menu", 5)
    scene.session.settled(2)
    found = menus()
    scene.session.keep(f"menu-{len(list(scene.session.results.glob('menu-*.png')))}")
    scene.session.press_key("Escape")
    if not eventually(lambda: not menus(), 2):
        scene.session.click((300, 500))
        need(lambda: not menus(), "the menu stays", 3)
    return max(found, key=lambda box: box.size[0] * box.size[1])


def menu(scene):
    """A menu at the screen's edge is as large as one in its middle, but for its shadow."""
    board, nearest = scene.places["board"], scene.places["nearest"]
    whole = open_menu(scene, nearest.middle)
    at_edge = open_menu(scene, (board.right - 6, board.bottom - 40))
    if any(edge < middle - SHADOW for edge, middle in zip(at_edge.size, whole.size)):
        raise Failure(f"{at_edge} of a menu of {whole.size[0]}x{whole.size[1]} is on the screen")
