"""Idle widgets wake nothing."""

import pathlib
import re
import time

from session import Failure

SECONDS = 60


def switches():
    """How often each of the host's threads, by number and name, has been woken until now, its supervisor's too."""
    counts = {}
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        if (process / "comm").read_text() == "skyvane-host\n":
            counts |= switches_of(process)
    return counts


def switches_of(process):
    counts = {}
    for thread in (process / "task").iterdir():
        text = (thread / "status").read_text()
        count = re.search(r"^voluntary_ctxt_switches:\s+(\d+)", text, re.MULTILINE).group(1)
        counts[thread.name, (thread / "comm").read_text().strip()] = int(count)
    return counts


def rest(scene):
    """The host sleeps for a minute between two refreshes, once threads of the toolkit's that have nothing to do have ended."""
    scene.session.point((20, 700))
    time.sleep(35)
    is_asking = True
    while is_asking:
        requests = scene.asked().count("/v2/point")
        before = switches()
        time.sleep(SECONDS)
        after = switches()
        is_asking = scene.asked().count("/v2/point") > requests
    woken = {thread[1]: number - before.get(thread, 0) for thread, number in after.items() if number != before.get(thread)}
    words = [f"{name} woke {count} times in {SECONDS} s" for name, count in woken.items()]
    words += [f"{name} ended" for _, name in before.keys() - after.keys()]
    if words:
        raise Failure("; ".join(words))
