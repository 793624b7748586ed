"""Plays scenarios with Easel: asks for objects and changes their gradients as a user does."""

import json
import subprocess


class Stopped(Exception):
    pass


def played(easel, lines, limit):
    """The answers of a scenario."""
    try:
        done = subprocess.run([easel, "play", "-"], input="\n".join(lines + [""]).encode(), capture_output=True,
                              timeout=limit)
    except subprocess.TimeoutExpired:
        raise Stopped("not in time") from None
    if done.returncode != 0:
        said = done.stderr.decode("utf-8", "replace").strip().splitlines()
        raise Stopped(said[-1] if said else f"ended with {done.returncode}")
    return [json.loads(line) for line in done.stdout.splitlines()]


def middle(fit):
    return [(a + b) / 2 for a, b in zip(fit["start"], fit["end"])]


def gestures(fits, chance):
    """A press or a drag for each shape, begun where its gradient has its middle."""
    for fit in fits:
        h, v = middle(fit)
        if not all(isinstance(number, float) and abs(number) < 1e6 for number in (h, v)):
            continue
        if chance.random() < 0.5:
            yield f"click {h:.3f} {v:.3f}"
        else:
            yield f"drag {h:.3f} {v:.3f} {h + chance.uniform(-60, 60):.3f} {v + chance.uniform(-60, 60):.3f}"
