"""Engraves the fine lines of the bank notes and completes their SVG drawings with them."""

import math
import re
from string import Template


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
    """Waves that swell and cross from edge to edge, the tint behind the print."""
    paths = []
    for line in range(lines):
        middle = top + (bottom - top) * (line + 0.5) / lines
        points = []
        for step in range(161):
            along = step / 160
            swell = 1.7 * math.sin(3 * math.pi * along + line * 0.55)
            ripple = 0.8 * math.sin(10 * math.pi * along - line * 0.8)
            points.append((left + (right - left) * along, middle + swell + ripple))
        paths.append(path_through(points, closed=False))
    return "".join(paths)


def engraved(drawing):
    """The text of a note's drawing with its lines cut in."""
    text = drawing.read_text()
    width, height = (float(side) for side in re.search(r'viewBox="0 0 (\S+) (\S+)"', text).groups())
    return Template(text).substitute(
        waves=waves(9, width - 2.5, 2.5, height - 2.5, 12),
        rosette=rosette((22, height / 2), (11, 9.5), 3.4, 9, 6),
        halo=rosette((width - 12.5, height / 2), (8.8, height / 2 - 3.4), 0.7, 24, 4))
