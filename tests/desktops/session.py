"""The session of a desktop: a screen that nobody sees, the programs on it with their words in files, and a user's hand."""

import os
import pathlib
import subprocess
import time

from picture import Picture

WIDTH, HEIGHT = 1600, 1000


WALLPAPER = pathlib.Path(__file__).resolve().parents[2] / "docs/pictures/wallpaper.svg"


OUTPUTS = f"""Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 256000
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 5-1000
    VertRefresh 5-200
    Modeline "{WIDTH}x{HEIGHT}" 136 {WIDTH} {WIDTH + 112} {WIDTH + 280} {WIDTH + 560} {HEIGHT} {HEIGHT + 3} {HEIGHT + 9} {HEIGHT + 38}
    Modeline "1280x800" 84 1280 1352 1480 1680 800 803 809 831
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    Monitor "monitor"
    DefaultDepth 24
    DefaultFbBpp 32
    SubSection "Display"
        Depth 24
        FbBpp 32
        Modes "{WIDTH}x{HEIGHT}" "1280x800"
        Virtual 4000 2000
    EndSubSection
EndSection
"""


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
        for log in self.results.glob("*.log"):
            log.unlink()

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

    def start_x_server(self, has_outputs=False):
        """Its frame buffer is a file, from which pictures are read; or it has outputs that come and go."""
        if has_outputs:
            file = self.run_folder / "xorg.conf"
            file.write_text(OUTPUTS)
            self.await_x_server(["Xorg", "-config", str(file), "-logfile", str(self.results / "xorg.log")])
            return
        buffer = self.run_folder / "frame-buffer"
        buffer.mkdir()
        self.await_x_server(["Xvfb", "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-fbdir", str(buffer)])
        self.outside["buffer"] = buffer / "Xvfb_screen0"

    def await_x_server(self, command):
        reader, writer = os.pipe()
        command += ["-displayfd", str(writer), "-nolisten", "tcp", "-noreset"]
        log = open(self.results / "x-server.log", "ab")
        self.processes["x-server"] = subprocess.Popen(command, pass_fds=[writer], stdout=log, stderr=log)
        os.close(writer)
        with os.fdopen(reader) as answer:
            display = answer.readline().strip()
        if not display:
            raise Failure("no X server")
        self.environment["DISPLAY"] = self.outside["DISPLAY"] = f":{display}"

    def picture(self):
        if buffer := self.outside.get("buffer"):
            return Picture.of_frame_buffer(buffer.read_bytes())
        command = [str(pathlib.Path(__file__).parent / "photograph")]
        return Picture.of_pnm(subprocess.run(command, env=self.environment, capture_output=True, check=True).stdout)

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
