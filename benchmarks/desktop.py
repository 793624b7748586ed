"""A desktop of a measurement's own, and Easel on it, with the journal in which Easel notes its times."""
import collections
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

TOOLS = ("Xvfb", "openbox", "xdotool", "convert")
REST = 0.2
TICK = 1 / os.sysconf("SC_CLK_TCK")  # what processor time is counted in

# A line of the journal. Begun and done are seconds of the monotonic clock: of an input, when it happened and when it
# reached the window; of something painted, both when it was on its way to the screen. Pixels are those painted.
Line = collections.namedtuple("Line", "begun done what pixels title")


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


def xdotool(*words):
    return subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True).stdout.strip()


class Desktop:
    """An X server with a window manager; the environment names it to programs."""

    def __enter__(self):
        # The screen lasts as long as its command, which waits for the end of its input.
        with_screen = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../tools/with-screen")
        self.screen = subprocess.Popen([with_screen, "1400x950", "sh", "-c", "echo $DISPLAY; cat"], text=True,
                                       stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        os.environ["DISPLAY"] = self.screen.stdout.readline().strip()
        return self

    def __exit__(self, *_):
        self.screen.stdin.close()
        self.screen.wait()


class Program:
    """Easel with one drawing in a window, its settings in a folder."""

    def __init__(self, easel, settings, drawing):
        self.title = os.path.basename(drawing)
        self.times = os.path.join(settings, f"times of {self.title}")
        open(self.times, "w").close()
        self.read = 0
        # What a program that was killed before left unsaved would be offered above the drawing.
        self.state = tempfile.TemporaryDirectory()
        environment = os.environ | {"EASEL_TIMES": self.times, "XDG_CONFIG_HOME": settings, "XDG_DATA_HOME": settings,
                                    "XDG_STATE_HOME": self.state.name}
        # The offer of templates to begin with would lie above the drawing.
        os.makedirs(os.path.join(settings, "kestrad"), exist_ok=True)
        with open(os.path.join(settings, "kestrad", "easel.conf"), "w") as file:
            file.write("[General]\nstarterTemplatesAnswered=true\n")
        self.begun = time.monotonic()
        self.process = subprocess.Popen([easel, drawing], env=environment, stderr=subprocess.DEVNULL)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        self.state.cleanup()

    def lines(self):
        """What the journal has that was not read yet."""
        with open(self.times, "rb") as file:
            file.seek(self.read)
            whole = file.read().rpartition(b"\n")[0]
        self.read += len(whole) + 1 if whole else 0
        return [parsed(line) for line in whole.decode().splitlines()]

    def lines_at_rest(self, seconds=60):
        """What was noted since the last call, once there is something and the program has come to rest."""
        noted = self.lines()
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            worked = self.processor_seconds()
            time.sleep(REST)
            more = self.lines()
            noted += more
            if noted and not more and self.processor_seconds() - worked <= TICK:
                return noted
        sys.exit("the window notes nothing, or comes to no rest")

    def window(self):
        return xdotool("search", "--onlyvisible", "--name", f"^{self.title}").split()[-1]

    def raise_window(self):
        xdotool("windowactivate", "--sync", self.window(), "sleep", 0.2)

    def middle(self):
        """The middle of the canvas on the screen."""
        window = self.window()
        place = dict(line.split("=") for line in xdotool("getwindowgeometry", "--shell", window).splitlines())
        # Menus and tools lie to the left of the canvas and above it.
        return int(place["X"]) + int(place["WIDTH"]) // 2 + 42, int(place["Y"]) + int(place["HEIGHT"]) // 2 + 14

    def processor_seconds(self):
        with open(f"/proc/{self.process.pid}/stat") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) * TICK


def parsed(text):
    moment, what, value, *title = text.split(" ", 3)
    done = int(moment) / 1e6
    if what == "painted":
        return Line(done, done, what, int(value), title[0] if title else "")
    # The display's clock counts whole milliseconds; what came within one came at once.
    begun = min(done, int(value) / 1e3 + 1e-3)
    return Line(begun, done, what, 0, title[0] if title else "")


def first_painted(lines, title, least=1):
    """When that much of a window whose title begins so was painted for the first time."""
    for line in lines:
        if line.what == "painted" and line.title.startswith(title) and line.pixels >= least:
            return line.done
    sys.exit(f"the window {title} was not painted")


def answers(lines, what, title):
    """For each input of this kind that changed something in the window, the seconds until all of it was painted."""
    times = []
    for line in lines:
        if line.what == what:
            times.append([line.begun, None])
        elif line.what != "painted":
            times.append([0, None])
        elif times and line.title.startswith(title):
            times[-1][1] = line.done
    return [done - begun for begun, done in times if begun and done]


def median_ms(times):
    if not times:
        sys.exit("the window did not answer")
    return statistics.median(times) * 1e3
