"""Strikes the pound coin: a relief drawing becomes metal under one lamp."""

import numpy as np
from PIL import Image

from catalogue import SOURCE
from raster import reduce_to, render_svg

STRUCK = 640
SHADES = (0.0, 0.3, 0.55, 0.78, 1.0)
GOLD = ((58, 30, 2), (150, 92, 10), (226, 168, 36), (255, 221, 98), (255, 252, 226))
LAMP = np.array([-0.52, -0.62, 0.59])


def softened(heights, reach):
    steps = np.arange(-3 * reach, 3 * reach + 1)
    kernel = np.exp(-0.5 * (steps / reach) ** 2)
    kernel /= kernel.sum()
    for _ in "down", "across":
        heights = np.apply_along_axis(np.convolve, 0, heights, kernel, "same").T
    return heights


def relief():
    """Heights of the coin's face, with the soft shoulders that striking leaves."""
    cut = render_svg(SOURCE / "coin-relief.svg", STRUCK, STRUCK, oversample=2).convert("L")
    heights = np.asarray(cut, float) / 255
    return heights, 0.7 * softened(heights, 5) + 0.3 * softened(heights, 14)


def brightness(shape):
    down, right = np.gradient(shape * STRUCK * 0.06)
    normal = np.dstack([-right, -down, np.ones_like(shape)])
    normal /= np.linalg.norm(normal, axis=2, keepdims=True)
    facing = normal @ (LAMP / np.linalg.norm(LAMP))
    return np.clip(facing, 0, 1)


def distance_from_middle():
    line = (np.arange(STRUCK) + 0.5) / STRUCK * 2 - 1
    return np.hypot(line[:, None], line[None, :])


def struck():
    heights, shape = relief()
    light = brightness(shape)
    line = np.linspace(-1, 1, STRUCK)
    sheen = 0.08 * np.cos(2.6 * (line[:, None] + line[None, :] + 0.5))
    # Metal left low is never rubbed bright: the dark field is what makes the number read.
    tone = 0.16 + 0.94 * light + sheen - 0.38 * (heights < 0.6)
    radius = distance_from_middle()
    # A dark line round the rim parts the coin from a yellow or green table.
    tone -= 0.8 * np.sqrt(np.maximum(radius - 0.91, 0) / 0.09)
    tone = np.clip(tone, 0, 1)
    channels = [np.interp(tone, SHADES, column) for column in zip(*GOLD)]
    alpha = 255.0 * (radius <= 1)
    pixels = np.rint(np.dstack(channels + [alpha])).astype(np.uint8)
    return Image.fromarray(pixels, "RGBA")


def draw(width, height):
    return reduce_to(struck(), width, height)
