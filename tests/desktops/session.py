"""The session of a desktop: a screen that nobody sees, the programs on it with their words in files, and a user's hand."""

import os
import pathlib
import subprocess
import time

from picture import Picture

WIDTH, HEIGHT = 1600, 1000


WALLPAPER = pathlib.Path(__file__).resolve().parents[2] / "docs/pictures/wallpaper.svg"


class Failure(Exception):
    """What is wrong, in words."""


def eventually(condition, limit=20, pause=0.1):
    """What the condition gives as soon as it is true of it, else what it gave last."""
    end = time.monotonic() + limit
    while not (found := condition()) and time.monotonic() < end:
        time.sleep(pause)
    return found


def need(condition, what, limit=20):
    if not (found := eventually(condition, limit)):
        raise Failure(what)
    return found


class Session:
    def __init__(self, results):
        self.results = pathlib.Path(results)
        self.home = pathlib.Path(os.environ["HOME"])
        self.run_folder = pathlib.Path(os.environ["XDG_RUNTIME_DIR"])
        self.environment = dict(os.environ)  # Of programs on the desktop.
        self.outside = {}  # Of the user's hand: the screen that a nested compositor is shown on.
        self.processes = {}

    def start(self, name, *command, **environment):
        """In the background, its words in NAME.log."""
        log = open(self.results / f"{name}.log", "ab")
        process = subprocess.Popen(command, env=self.environment | environment, stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        self.processes[name] = process
        return process

    def stop(self, name):
        process = self.processes.pop(name, None)
        if process is None:
            return
        process.terminate()
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()

    def kill(self, name):
        """As a crash would."""
        process = self.processes.pop(name)
        process.kill()
        process.wait()

    def words_of(self, name):
        return (self.results / f"{name}.log").read_text(errors="replace")

    def run(self, *command, limit=20, **environment):
        """To its end; its standard output."""
        surroundings = {"env": self.environment | environment, "stdin": subprocess.DEVNULL, "timeout": limit}
        done = subprocess.run(command, capture_output=True, **surroundings)
        with open(self.results / "commands.log", "ab") as log:
            log.write(f"$ {' '.join(command)}\n".encode() + done.stderr)
        return done.stdout.decode(errors="replace")

    # The screen

    def start_x_server(self):
        """Its frame buffer is a file, from which pictures are read."""
        reader, writer = os.pipe()
        buffer = self.run_folder / "frame-buffer"
        buffer.mkdir()
        log = open(self.results / "xvfb.log", "ab")
        size = f"{WIDTH}x{HEIGHT}x24"
        command = ["Xvfb", "-displayfd", str(writer), "-screen", "0", size, "-nolisten", "tcp", "-noreset", "-fbdir", str(buffer)]
        self.processes["xvfb"] = subprocess.Popen(command, pass_fds=[writer], stdout=log, stderr=log)
        os.close(writer)
        with os.fdopen(reader) as answer:
            display = answer.readline().strip()
        if not display:
            raise Failure("no X server")
        self.environment["DISPLAY"] = self.outside["DISPLAY"] = f":{display}"
        self.outside["buffer"] = buffer / "Xvfb_screen0"

    def picture(self):
        return Picture.read(self.outside["buffer"])

    def keep(self, name):
        """What is to be seen now, as a file."""
        self.picture().write(self.results / f"{name}.png")

    def settled(self, limit=10, pause=0.4):
        """The picture once it has stayed as it is for so long."""
        last = self.picture()
        end = time.monotonic() + limit
        while time.monotonic() < end:
            time.sleep(pause)
            now = self.picture()
            if now.pixels == last.pixels:
                break
            last = now
        return last

    # The user's hand

    def hand(self, *words):
        self.run("xdotool", *map(str, words), DISPLAY=self.outside["DISPLAY"])

    def point(self, place):
        self.hand("mousemove", *place)
        time.sleep(0.15)

    def click(self, place, button=1):
        self.point(place)
        self.hand("click", button)
        time.sleep(0.3)

    def press_key(self, *keys):
        self.hand("key", *keys)
        time.sleep(0.3)

    def drag(self, start, end, steps=40, at_half=None):
        """With the left button, in small steps; at half of them the function is called."""
        self.point(start)
        self.hand("mousedown", 1)
        time.sleep(0.1)
        for begin, until in ((1, steps // 2), (steps // 2 + 1, steps)):
            words = []
            for step in range(begin, until + 1):
                words += ["mousemove", *(a + (b - a) * step // steps for a, b in zip(start, end)), "sleep", 0.015]
            self.hand(*words)
            time.sleep(0.4)
            if at_half and until < steps:
                at_half()
        self.hand("mouseup", 1)
        time.sleep(0.4)
