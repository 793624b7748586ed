"""Pictures of one drawing by several programs: making, comparing and showing them side by side."""

import subprocess

import numpy
from PIL import Image

# Pictures are alike if at most this share of their pixels differs by more than so many levels in a channel.
LEVELS = 24
SHARE = 0.01


def called(words, limit):
    """Returns what went wrong, or nothing."""
    try:
        done = subprocess.run(words, capture_output=True, timeout=limit)
    except subprocess.TimeoutExpired:
        return "not in time"
    if done.returncode == 0:
        return ""
    said = done.stderr.decode("utf-8", "replace").strip().splitlines()
    return said[-1] if said else f"ends with {done.returncode}"


def levels(picture):
    """Rows of pixels as premultiplied red, green, blue and alpha, 0 to 255."""
    with Image.open(picture) as image:
        pixels = numpy.asarray(image.convert("RGBA"), dtype=numpy.float32)
    return numpy.concatenate([pixels[..., :3] * (pixels[..., 3:] / 255), pixels[..., 3:]], axis=2)


def blurred(pixels):
    """Each pixel the mean of the 3 x 3 around it; at the edge the outermost pixels go on."""
    wide = numpy.pad(pixels, ((1, 1), (1, 1), (0, 0)), mode="edge")
    height, width = pixels.shape[:2]
    return sum(wide[y:y + height, x:x + width] for y in range(3) for x in range(3)) / 9


def sizes_differ(one, other):
    return one.shape[1] != other.shape[1] or abs(one.shape[0] - other.shape[0]) > 1


def share_apart(one, other):
    """The share of pixels that differ where the pictures overlap."""
    height = min(one.shape[0], other.shape[0])
    apart = numpy.abs(blurred(one[:height]) - blurred(other[:height])).max(axis=2) > LEVELS
    return float(apart.mean())


def side_by_side(pictures, place):
    """Easel's picture on the left, the other on the right, both over white."""
    images = [Image.open(picture).convert("RGBA") for picture in pictures if picture.exists()]
    gap = 8
    sheet = Image.new("RGBA", (sum(image.width + gap for image in images), max(image.height for image in images)), "#b0b0b0")
    left = 0
    for image in images:
        sheet.paste("white", (left, 0, left + image.width, image.height))
        sheet.alpha_composite(image, (left, 0))
        left += image.width + gap
    sheet.save(place)
