"""Idle widgets wake nothing."""

import pathlib
import re
import time

from session import Failure

SECONDS = 60


def switches(process):
    """How often each of its threads has been woken until now."""
    threads = pathlib.Path(f"/proc/{process}/task").iterdir()
    texts = {thread.name: (thread / "status").read_text() for thread in threads}
    return {thread: int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", text, re.MULTILINE).group(1)) for thread, text in texts.items()}


def rest(scene):
    """The host sleeps for a minute."""
    process = scene.session.processes["host"].pid
    scene.session.point((20, 700))
    time.sleep(3)
    before = switches(process)
    time.sleep(SECONDS)
    after = switches(process)
    count = sum(number - before.get(thread, 0) for thread, number in after.items()) + len(before.keys() - after.keys())
    if count:
        raise Failure(f"{count} wake-ups in {SECONDS} s")
