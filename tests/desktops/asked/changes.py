"""What happens to a desktop while it is used."""

import time

from session import Failure


def restart(scene):
    """Window manager, or compositor, killed and started again: the widgets are back within ten seconds."""
    if words := scene.desktop.without.get("restart"):
        return words
    scene.desktop.restart(scene.session)
    time.sleep(1)  # Until what was there has gone.
    scene.all_seen(limit=8)
    time.sleep(0.5)  # What is back stays.
    if gone := scene.all_seen(limit=0.5):
        scene.session.keep("restart")
        raise Failure(f"{', '.join(gone)} not to be seen ten seconds after the restart")
    return None
