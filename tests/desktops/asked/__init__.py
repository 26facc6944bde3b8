"""What every desktop is asked, in this order; each leaves the scene as it found it, but for the place of a dragged widget. A
behaviour's function raises Failure with words, or gives words why the desktop cannot be asked."""

from asked import changes, hand, rest, stacking, start

BEHAVIOURS = {
    "place": start.place,
    "panel": start.panel,
    "lists": start.lists,
    "below": stacking.below,
    "clicked": stacking.clicked,
    "shown desktop": stacking.shown_desktop,
    "workspaces": stacking.workspaces,
    "focus": hand.focus,
    "link": hand.link,
    "front": hand.front,
    "keyboard": hand.keyboard,
    "drag": hand.drag,
    "menu": hand.menu,
    "rest": rest.rest,
    "scale": changes.scale,
    "screens": changes.screens,
    "restart": changes.restart,
}
SLOW = {"rest"}  # Left out of the tests that every build runs.
