"""What the window does while filters and large pictures are painted: drawings of both, and the times of each."""
import math
import os
import random
import subprocess
import threading

from desktop import Program, answers, median_ms, xdotool

SIDE = 500  # of the filtered group, in drawing units
SHAPES = 1000
PICTURE = (5200, 3900)  # 20 megapixels
MOVES = 15
STEPS = 6
OPENINGS = 3

# Goals, in milliseconds.
BESIDE = 8
INSIDE = 33
BLOCKED = 50


def write_filtered(file):
    """A group of shapes with a blur, and a plain rectangle beside it."""
    place = random.Random(1)
    shapes = "\n".join(
        f'<circle cx="{place.uniform(150, 550):.1f}" cy="{place.uniform(150, 550):.1f}" '
        f'r="{place.uniform(4, 20):.1f}" fill="#{place.randrange(4096):03x}"/>' for _ in range(SHAPES - 1))
    with open(file, "w") as out:
        out.write(f'<svg xmlns="http://www.w3.org/2000/svg" width="1000" height="700">\n'
                  f'<filter id="blur" filterUnits="userSpaceOnUse" x="100" y="100" width="{SIDE}" height="{SIDE}">'
                  f'<feGaussianBlur stdDeviation="4"/></filter>\n'
                  f'<g filter="url(#blur)">\n{shapes}\n<rect x="250" y="250" width="200" height="200" fill="#36a"/>\n'
                  f'</g>\n<rect x="550" y="100" width="400" height="500" fill="#12c84a" fill-opacity=".8"/>\n</svg>\n')


def write_with_picture(easel, folder):
    """A drawing that shows a file of so many pixels, which the program itself makes."""
    width, height = PICTURE
    with open(os.path.join(folder, "ground.svg"), "w") as out:
        out.write('<svg xmlns="http://www.w3.org/2000/svg" width="520" height="390"><radialGradient id="g">'
                  '<stop stop-color="#fc4"/><stop offset="1" stop-color="#248"/></radialGradient>'
                  '<rect width="520" height="390" fill="url(#g)"/></svg>\n')
    subprocess.run([easel, "render", "ground.svg", "large.png", "--width", str(width)], cwd=folder, check=True,
                   stdout=subprocess.DEVNULL)
    subprocess.run(["convert", "large.png", "large.jpg"], cwd=folder, check=True)
    file = os.path.join(folder, "with picture.svg")
    with open(file, "w") as out:
        out.write(f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{width / 5}" '
                  f'height="{height / 5}"><image width="{width / 5}" height="{height / 5}" xlink:href="large.jpg"/></svg>\n')
    return file


def turn_gradient(program, x, y):
    """Drags that turn the gradient of a shape: the frames of the drags, and from the release to the new pixels."""
    frames, ends = [], []
    xdotool("mousemove", x, y, "sleep", 0.1, "click", 1, "sleep", 0.3)
    program.lines_at_rest()
    for step in range(STEPS):
        words = ["mousemove", x, y, "sleep", 0.1, "mousedown", 1, "sleep", 0.1, "mousemove", x + 10, y, "sleep", 0.1]
        for i in range(MOVES):
            words += ["mousemove", x + round(60 * math.cos(step + i / 3)), y + round(60 * math.sin(step + i / 3)),
                      "sleep", 0.03]
        xdotool(*words)
        frames += answers(program.lines_at_rest(), "move", program.title)[-MOVES:]
        xdotool("mouseup", 1)
        ends += answers(program.lines_at_rest(), "release", program.title)
    return frames, ends


def measure_filtered(figures, easel, settings, folder):
    """Drags beside a filtered group and in it."""
    file = os.path.join(folder, "filtered.svg")
    write_filtered(file)
    with Program(easel, settings, file) as program:
        program.lines_at_rest()
        program.raise_window()
        xdotool("key", "ctrl+1")
        program.lines_at_rest()
        x, y = program.middle()
        for place, at, goal in (("beside", 250, BESIDE), ("in", -150, INSIDE)):
            frames, ends = turn_gradient(program, x + at, y)
            name = f"{place} {SHAPES} blurred shapes"
            figures.add(name, "frame of a drag", median_ms(frames), "ms", goal)
            figures.add(name, "what the drag changed", median_ms(ends), "ms", goal)


class MovingPointer:
    """Moves the pointer all the time, so that the window has something to answer."""

    def __enter__(self):
        self.wanted = True
        self.thread = threading.Thread(target=self.move)
        self.thread.start()
        return self

    def __exit__(self, *_):
        self.wanted = False
        self.thread.join()

    def move(self):
        while self.wanted:
            words = []
            for i in range(20):
                words += ["mousemove", 700 + i % 10, 500, "sleep", 0.01]
            xdotool(*words)


def measure_opening(figures, easel, settings, folder):
    """How long the window hears nothing while a drawing with a large picture is opened in it and painted."""
    blank = os.path.join(folder, "blank.svg")
    with open(blank, "w") as out:
        out.write('<svg xmlns="http://www.w3.org/2000/svg" width="400" height="300"/>\n')
    file = write_with_picture(easel, folder)
    silences, contents = [], []
    for _ in range(OPENINGS):
        with Program(easel, settings, blank) as program:
            program.lines_at_rest()
            xdotool("key", "ctrl+o", "sleep", 1, "type", "--delay", "1", file)
            program.lines_at_rest()
            with MovingPointer():
                xdotool("sleep", 0.3, "key", "Return", "sleep", 3)
            lines = program.lines()
        pressed = next(line for line in lines if line.what == "key").begun
        silences.append(max(line.done - line.begun for line in lines if line.what == "move" and line.done > pressed))
        contents.append(max(line.done for line in lines if line.what == "painted" and line.pixels > 100000) - pressed)
    name = "a picture of 20 megapixels opened"
    figures.add(name, "longest without an answer", median_ms(silences), "ms", BLOCKED)
    figures.add(name, "all of it painted", median_ms(contents), "ms")
