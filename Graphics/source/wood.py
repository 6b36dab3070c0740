"""Grows the honey-coloured wood of the buttons, the same board at every resolution."""

import numpy as np
from PIL import Image

SEED = 1907
MEAN = np.array([242, 198, 98])
# Dark grain turns redder and loses blue last; the tones stay on this one line.
TOWARDS_DARK = np.array([-24, -34, -40])
TONES = 96


class Board:
    """Noise cast once on lattices; sampling it finer adds pixels, not new grain."""

    def __init__(self, pixels):
        self.pixels = pixels
        self.random = np.random.default_rng(SEED)

    def noise(self, across, down):
        """Smooth noise of unit spread with so many swells across and down the board."""
        lattice = self.random.standard_normal((down + 3, across + 3)).astype(np.float32)
        inner = (1.5, 1.5, across + 1.5, down + 1.5)
        size = (self.pixels, self.pixels)
        swell = Image.fromarray(lattice).resize(size, Image.Resampling.BICUBIC, box=inner)
        return np.asarray(swell, float) / lattice.std()


def grain(pixels):
    """Darkness of the wood, about 0 in the mean and of unit order."""
    board = Board(pixels)
    height = (np.arange(pixels)[:, None] + 0.5) / pixels
    bowed = height + 0.035 * board.noise(2, 3) + 0.006 * board.noise(5, 14)
    rings = bowed * 11 + 0.5 * board.noise(1, 6)
    # Late wood ends sharply and early wood begins softly, as in a plain-sawn board.
    phase = rings - np.floor(rings)
    bands = np.where(phase < 0.86, (phase / 0.86) ** 2.2, 1 - (phase - 0.86) / 0.14)
    strength = 0.75 + 0.25 * board.noise(1, 9)
    fibres = 0.26 * board.noise(7, 110) + 0.20 * board.noise(14, 260)
    broad = 0.40 * board.noise(2, 5) + 0.22 * board.noise(3, 34)
    pores = np.clip(board.noise(26, 300) - 2.1, 0, 1.2)
    return (bands - 0.42) * strength + broad + fibres + 0.5 * pores


def draw(width, height):
    if width != height:
        raise ValueError("the board is square")
    dark = grain(width)
    dark = np.clip((dark - dark.mean()) / dark.std(), -2.6, 2.6) / 2.6
    step = np.rint((dark - dark.mean() + 1.2) / 2.4 * (TONES - 1))
    picture = Image.fromarray(np.clip(step, 0, TONES - 1).astype(np.uint8), "P")
    levels = np.linspace(-1.2, 1.2, TONES)[:, None]
    palette = np.clip(np.rint(MEAN + levels * TOWARDS_DARK), 0, 255)
    picture.putpalette(palette.astype(np.uint8).ravel().tolist())
    return picture
