"""A panel for compositors that have none; not a desktop itself."""

import json

from session import need

HEIGHT = 30


def start(session):
    folder = session.home / ".config/waybar"
    folder.mkdir(parents=True, exist_ok=True)
    panel = {"layer": "top", "position": "top", "height": HEIGHT, "modules-left": ["wlr/taskbar"]}
    (folder / "config").write_text(json.dumps(panel))
    (folder / "style.css").write_text("* { min-height: 0; } window#waybar { background: #2060a0; }")
    session.start("panel", "waybar")
    need(lambda: session.picture().extent(0x2060A0), "no panel")
