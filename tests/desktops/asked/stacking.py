"""Widgets lie under every window, above the desktop's own, everywhere."""

import time

from picture import Box
from scene import MAGENTA
from session import Failure, eventually


def below(scene):
    """A window that covers the screen covers every widget."""
    editor = scene.open_editor("over")
    covered = lambda: all(scene.seen(name) < 0.05 for name in scene.places)  # noqa: E731
    if not eventually(covered, 3):
        above = [name for name in scene.places if scene.seen(name) >= 0.05]
        raise Failure(f"{', '.join(above)} above a window that covers the screen")
    scene.close_editor(editor)
    scene.expect_all_seen("after a window over them is closed")


def hidden_part(scene, name):
    """Of a widget, what lies under the editor."""
    return scene.places[name].inside(scene.editor_extent())


def clicked(scene):
    """A click on a widget, some of which looks out from under a window, leaves it there. The middle button's opens nothing."""
    editor = scene.open_editor("wide")
    hidden = hidden_part(scene, "board")
    if hidden is None:
        raise Failure(f"the window at {scene.editor_extent()} does not cover the board at {scene.places['board']}")
    scene.session.click(scene.row(1), button=2)
    time.sleep(0.5)
    share = scene.session.picture().share_of(MAGENTA, hidden)
    if share < 0.98:
        raise Failure(f"a click raises it: {share:.0%} of what was covered at {hidden} still is")
    scene.close_editor(editor)


def shown_desktop(scene):
    """Widgets stay when the user asks for the desktop and then clicks on it."""
    if words := scene.desktop.without.get("shown desktop"):
        return words
    session, desktop = scene.session, scene.desktop
    editor = scene.open_editor("wide")
    desktop.show_desktop(session, True)
    if not eventually(lambda: not scene.editor_extent(), 5):
        raise Failure("the window stays when the desktop is asked for")
    try:
        scene.expect_all_seen("when the desktop is shown")
        session.click((500, 600))
        scene.expect_all_seen("after a click on the shown desktop")
    finally:
        session.keep("shown-desktop")
        desktop.show_desktop(session, False)
        scene.close_editor(editor)
    scene.expect_all_seen("after the windows are back")
    return None


def workspaces(scene):
    """Widgets are on the second workspace as on the first."""
    if words := scene.desktop.without.get("workspaces"):
        return words
    editor = scene.open_editor("wide")
    scene.desktop.go_to_workspace(scene.session, 1)
    try:
        if not eventually(lambda: not scene.editor_extent(), 5):
            raise Failure("the second workspace shows the windows of the first")
        scene.expect_all_seen("on the second workspace")
    finally:
        scene.desktop.go_to_workspace(scene.session, 0)
        eventually(scene.editor_extent, 5)
        scene.close_editor(editor)
    scene.expect_all_seen("back on the first workspace")
    return None
