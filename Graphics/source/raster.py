"""Turns drawings into pixels: rendered large, reduced once, then set on a ground."""

import io
import subprocess
from pathlib import Path

from PIL import Image

OVERSAMPLE = 8


def render_svg(svg, width, height, oversample=OVERSAMPLE):
    """Renders an SVG (a path, or the text of one) to RGBA of exactly this size."""
    command = ["rsvg-convert", "-w", str(width * oversample), "-h", str(height * oversample)]
    text = None
    if isinstance(svg, Path):
        command.append(str(svg))
    else:
        text = svg.encode()
    png = subprocess.run(command, input=text, stdout=subprocess.PIPE, check=True).stdout
    return reduce_to(Image.open(io.BytesIO(png)).convert("RGBA"), width, height)


def reduce_to(image, width, height):
    """Reduces with premultiplied colour, so that no shape takes on a fringe of clear black."""
    premultiplied = image.convert("RGBa")
    return premultiplied.resize((width, height), Image.Resampling.HAMMING).convert("RGBA")


def on_ground(width, height, ground, art, corner):
    """Sets art on an opaque ground; "transparent" keeps its own alpha instead."""
    clear = ground == "transparent"
    sheet = Image.new("RGBA", (width, height), (0, 0, 0, 0) if clear else ground)
    sheet.alpha_composite(art, corner)
    return sheet if clear else sheet.convert("RGB")
