"""How the widgets come up for a new user."""

from scene import SIZES
from session import Failure


def place(scene):
    """Three, of the right sizes, down the right edge of the room that panels leave. Where there is no place below the windows, none,
    and the host says so once."""
    if refusals := scene.refusals():
        if len(refusals) != 1 or not scene.desktop.may_give_no_place:
            raise Failure(f"said {len(refusals)} times: {refusals[0]}")
        return refusals[0].partition(": ")[2]
    if not scene.places:
        raise Failure(f"not three widgets of their sizes, but changes at {', '.join(map(str, scene.changes)) or 'no place'}")
    area = scene.desktop.work_area(scene.session)
    edge = area.right - 24
    top = area.top + 24
    for name in ("nearest", "radar", "board"):
        box = scene.places[name]
        if box.size != SIZES[name]:
            raise Failure(f"{name} with a line around it, at {box}")
        if box.right != edge or abs(box.top - top) >= 8:
            raise Failure(f"{name} at {box}, not with its right edge at {edge} and its top at {top}, in {area}")
        top = box.bottom + 8
    return None


def panel(scene):
    """No widget lies behind a panel, which is what the work area leaves out."""
    area = scene.desktop.work_area(scene.session)
    if area == scene.picture.whole:
        return "no panel"
    for name, box in scene.places.items():
        if box.inside(area) != box:
            raise Failure(f"{name} at {box} is not wholly in {area}")
    return None


def lists(scene):
    """Neither task bar nor pager nor switcher has a widget, and none asks for attention."""
    if words := scene.desktop.listed(scene.session):
        raise Failure("; ".join(words))
