"""A desktop of a measurement's own, and Easel on it, with the journal in which Easel notes its times."""
import collections
import os
import shutil
import subprocess
import sys
import time

TOOLS = ("Xvfb", "openbox", "xdotool")

# Times are seconds of the monotonic clock. What: press, release, move, wheel, key or painted. Sent: when an input
# happened by the X server's clock, None for painted. Size: width and height of what was painted, else None.
Line = collections.namedtuple("Line", "time what sent size title")


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


def xdotool(*words):
    return subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True).stdout.strip()


class Desktop:
    """An X server with a window manager; the environment names it to programs."""

    def __enter__(self):
        read, write = os.pipe()
        self.screen = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1400x950x24", "-nolisten", "tcp"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.environ["DISPLAY"] = ":" + os.read(read, 16).decode().strip()
        self.manager = subprocess.Popen(["openbox", "--sm-disable"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(1)
        return self

    def __exit__(self, *_):
        for process in (self.manager, self.screen):
            process.kill()
            process.wait()


class Program:
    """Easel with one drawing, its pointer over the middle of the canvas."""

    def __init__(self, easel, folder, drawing, *options):
        self.times = os.path.join(folder, "times")
        open(self.times, "w").close()
        self.read = 0
        self.title = os.path.basename(drawing)
        environment = os.environ | {"EASEL_TIMES": self.times, "XDG_CONFIG_HOME": folder, "XDG_DATA_HOME": folder}
        self.begun = time.monotonic()
        self.process = subprocess.Popen([easel, *options, drawing], env=environment, stderr=subprocess.DEVNULL)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()

    def lines(self):
        """What the journal has that was not read yet."""
        with open(self.times) as file:
            file.seek(self.read)
            whole = file.read().rpartition("\n")[0]
        self.read += len(whole.encode()) + (1 if whole else 0)
        return [parsed(line) for line in whole.splitlines()]

    def wait_for_painted(self, title, atleast=(0, 0), seconds=60):
        """The first time that so much of a window of this title was painted."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            for line in self.lines():
                if line.what == "painted" and line.title.startswith(title) and line.size >= atleast:
                    return line.time
            time.sleep(0.01)
        sys.exit(f"the window {title} was not painted")

    def processor_seconds(self):
        with open(f"/proc/{self.process.pid}/stat") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def parsed(line):
    moment, what, value, *title = line.split(" ", 3)
    size = tuple(map(int, value.split("x"))) if what == "painted" else None
    sent = None if size else int(value) / 1e3
    return Line(int(moment) / 1e6, what, sent, size, title[0] if title else "")


def answers(lines, what, title):
    """For each input of this kind, the seconds from its arrival to the last pixels that it changed."""
    times = []
    for i, line in enumerate(lines):
        if line.what != what:
            continue
        painted = None
        for later in lines[i + 1:]:
            if later.what != "painted":
                break
            if later.title.startswith(title):
                painted = later
        times.append(None if painted is None else painted.time - line.time)
    return times
