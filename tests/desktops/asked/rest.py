"""Idle widgets wake nothing."""

import pathlib
import re
import time

from session import Failure

SECONDS = 60


def switches(process):
    """How often its threads have been woken until now."""
    text = "\n".join(status.read_text() for status in pathlib.Path(f"/proc/{process}/task").glob("*/status"))
    return sum(map(int, re.findall(r"^voluntary_ctxt_switches:\s+(\d+)", text, re.MULTILINE)))


def rest(scene):
    """The host sleeps for a minute."""
    process = scene.session.processes["host"].pid
    scene.session.point((20, 700))
    time.sleep(3)
    before = switches(process)
    time.sleep(SECONDS)
    if count := switches(process) - before:
        raise Failure(f"{count} wake-ups in {SECONDS} s")
