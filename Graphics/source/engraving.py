"""Engraves the fine lines of the bank notes and completes their SVG drawings with them."""

import math
import re
from string import Template

import numpy as np

from raster import render_svg

# Tones of a vignette are sampled so many times a unit.
SAMPLES = 16
# An engraver has few tones: how wide a line is for each, from bare paper to full ink.
WIDTHS = np.array([0, 0.2, 0.42, 0.66, 1.0])


def path_through(points, closed):
    body = "L".join(f"{x:.2f} {y:.2f}" for x, y in points)
    return "M" + body + ("Z" if closed else "")


def rosette(centre, radii, depth, lobes, turns):
    """Interlaced closed waves around a point, as a geometric lathe cuts them."""
    paths = []
    for turn in range(turns):
        phase = 2 * math.pi * turn / turns
        swing = depth * (1 - 0.45 * turn / turns)
        points = []
        for step in range(360):
            angle = math.radians(step)
            reach = swing * math.cos(lobes * angle + phase)
            points.append((centre[0] + (radii[0] + reach) * math.cos(angle),
                           centre[1] + (radii[1] + reach) * math.sin(angle)))
        paths.append(path_through(points, closed=True))
    return "".join(paths)


def waves(left, right, top, bottom, lines):
    """Waves that swell and cross, yet never leave their box: the tint behind the print."""
    swell, ripple = 1.2, 0.6
    top, bottom = top + swell + ripple, bottom - swell - ripple
    paths = []
    for line in range(lines):
        middle = top + (bottom - top) * line / (lines - 1)
        points = []
        for step in range(161):
            along = step / 160
            rise = swell * math.sin(3 * math.pi * along + line * 0.55)
            rise += ripple * math.sin(10 * math.pi * along - line * 0.8)
            points.append((left + (right - left) * along, middle + rise))
        paths.append(path_through(points, closed=False))
    return "".join(paths)


def runs(inked):
    """Beginnings and ends of the runs in which a line has any width."""
    edges = np.flatnonzero(np.diff(np.concatenate([[0], inked, [0]])))
    return zip(edges[::2], edges[1::2])


def shaded(drawing):
    """A grey drawing turned into lines one unit apart, whose width carries its tone."""
    width, height = view_box(drawing.read_text())
    grey = render_svg(drawing, round(width * SAMPLES), round(height * SAMPLES), oversample=1)
    pixels = np.asarray(grey, float) / 255
    dark = pixels[..., 3] * (1 - pixels[..., 0])
    tones = WIDTHS[np.rint(dark * (len(WIDTHS) - 1)).astype(int)]
    along = (np.arange(tones.shape[1]) + 0.5) / SAMPLES
    paths = []
    for line in range(int(height)):
        # At double scale a line and its gap have a row of pixels each.
        middle = line + 0.25
        breadths = tones[int(middle * SAMPLES)] / 2
        for start, end in runs(breadths > 0):
            upper = [(along[at], middle - breadths[at]) for at in range(start, end, 2)]
            lower = [(x, 2 * middle - y) for x, y in reversed(upper)]
            paths.append(path_through(upper + lower, closed=True))
    return "".join(paths)


def view_box(text):
    return [float(side) for side in re.search(r'viewBox="0 0 (\S+) (\S+)"', text).groups()]


def engraved(drawing):
    """The text of a note's drawing with its lines cut in."""
    text = drawing.read_text()
    width, height = view_box(text)
    vignette = drawing.with_name(drawing.stem + "-vignette.svg")
    return Template(text).substitute(
        waves=waves(10, width - 3, 3, height - 3, 11),
        rosette=rosette((0, 0), (10, 6.4), 1.6, 9, 6),
        shading=shaded(vignette))
