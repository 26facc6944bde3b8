"""What happens to a desktop while it is used."""

import time

from picture import Box, Picture
from scene import SIZES, is_near
from session import Failure, eventually


def scale(scene):
    """The screen's scale becomes 1.25, 1.5 and 2 while widgets are shown: each has its size at it, and none covers another."""
    if words := scene.desktop.without.get("scale"):
        return words
    scene.session.point((20, scene.picture.height - 20))  # Between no two widgets.
    inner = Box(2, 2, scene.picture.width - 2, scene.picture.height - 2)  # A scaled wallpaper fades at its edges.
    background = scene.desktop.background.to_bytes(4, "little")
    plain = Picture(*inner.size, background * (inner.size[0] * inner.size[1]))
    try:
        for factor in (1.25, 1.5, 2):
            scene.desktop.change_scale(scene.session, factor)
            wanted = [tuple(round(factor * length) for length in size) for size in SIZES.values()]
            boxes = lambda: [box.size for box in scene.session.picture().crop(inner).changes(plain)]  # noqa: E731
            scene.session.settled(3)
            scene.session.keep(f"scale-{factor}")
            if not eventually(lambda: all(any(is_near(size, box) for box in boxes()) for size in wanted), 5):  # noqa: B023
                raise Failure(f"at {factor} widgets of {boxes()}")
    finally:
        scene.desktop.change_scale(scene.session, 1)
    scene.expect_all_seen("back at scale 1")
    return None


def screens(scene):
    """A second screen comes along; the first is unplugged, replugged, for a while a smaller one, on the other side of the second,
    and asleep. Each time the widgets are where they were, and meanwhile none stands over another."""
    if words := scene.desktop.without.get("screens"):
        return words
    session, desktop = scene.session, scene.desktop
    words = []

    def expect_in_place(when, limit=5, across=0):
        if gone := scene.all_seen(limit, across):
            session.keep(f"screen-{when.replace(' ', '-')}")
            words.append(f"{', '.join(gone)} not in place {when}")

    desktop.add_screen(session)
    time.sleep(2)
    expect_in_place("when a second screen comes along")
    for name, change, back in (("unplugged", desktop.switch_screen, True), ("smaller", desktop.resize_screen, False)):
        change(session, not back)
        time.sleep(3)
        session.keep(f"screen-{name}")
        if over := overlapping(desktop.frames(session) or []):
            words.append(f"{over} when the screen is {name}")
        change(session, back)
        expect_in_place(f"after the screen was {name}", 10)
    across = desktop.swap_screens(session, True)
    time.sleep(2)
    expect_in_place("when the screens are swapped", 10, across)
    desktop.swap_screens(session, False)
    expect_in_place("after the screens were swapped", 10)
    desktop.sleep_screens(session)
    expect_in_place("after the screens slept", 10)
    desktop.remove_screen(session)
    time.sleep(2)
    expect_in_place("after the second screen has gone")
    if words:
        raise Failure("; ".join(words))
    return None


def overlapping(frames):
    pairs = [(one, other) for number, one in enumerate(frames) for other in frames[:number] if one.inside(other)]
    return "; ".join(f"{one} over {other}" for one, other in pairs)


def restart(scene):
    """Window manager, or compositor, killed and started again: the widgets are back within ten seconds."""
    if words := scene.desktop.without.get("restart"):
        return words
    scene.desktop.restart(scene.session)
    time.sleep(1)  # Until what was there has gone.
    scene.all_seen(limit=8)
    time.sleep(0.5)  # What is back stays.
    if gone := scene.all_seen(limit=0.5):
        raise Failure(f"{', '.join(gone)} not to be seen ten seconds after the restart")
    return None
