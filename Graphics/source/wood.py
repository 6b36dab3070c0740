"""Saws the honey-coloured board of the buttons, the same board at every resolution."""

import numpy as np
from PIL import Image

SEED = 1907
# The board is cut this fine and then reduced, so that the finer picture shows finer pores.
CUT = 1600
# Darkness and its colour: sapwood, the mean, late wood where it begins and ends, pores.
DARKNESS = (-1.0, 0.0, 1.0, 2.0, 3.2)
COLOURS = ((255, 224, 136), (247, 205, 106), (217, 160, 62), (186, 124, 42), (152, 98, 34))
MEAN = np.array([242, 198, 98])
# Heartwood is redder than sapwood: the board's colour strays along this line.
REDDER = np.array([1, -5, -8])
COLOURS_KEPT = 256
PORES = 5200


class Board:
    """Noise cast once on lattices, whose swells are counted across and down the board."""

    def __init__(self):
        self.random = np.random.default_rng(SEED)
        line = (np.arange(CUT, dtype=np.float32) + 0.5) / CUT
        self.across, self.down = line[None, :], line[:, None]

    def noise(self, across, down):
        """Smooth noise of unit spread."""
        lattice = self.random.standard_normal((down + 3, across + 3)).astype(np.float32)
        inner = (1.5, 1.5, across + 1.5, down + 1.5)
        swell = Image.fromarray(lattice).resize((CUT, CUT), Image.Resampling.BICUBIC, box=inner)
        return np.asarray(swell, np.float32) / lattice.std()


def rings(board):
    """The number of the year's ring at each place: a plane sawn from a tapering log."""
    beside = board.down - 0.56 + 0.025 * board.noise(3, 2)
    depth = 0.05 + 0.62 * board.across + 0.02 * board.noise(4, 3)
    return 11 * np.hypot(beside, 0.5 * depth) + 0.13 * board.noise(3, 9)


def late_wood(count):
    """Each ring begins pale and darkens to a sharp end."""
    phase = count - np.floor(count)
    return np.where(phase < 0.84, (phase / 0.84) ** 2.6, (1 - phase) / 0.16)


def pores(board):
    """Short dark scratches along the grain, most of them where a ring begins."""
    scratches = np.zeros((CUT, CUT), np.float32)
    lefts, tops = board.random.integers(0, CUT, (2, PORES))
    lengths = board.random.integers(10, 60, PORES)
    depths = board.random.uniform(0.5, 1.7, PORES)
    for left, top, length, depth in zip(lefts, tops, lengths, depths):
        scratches[top:top + 3, left:left + length] += depth
    return scratches


def darkness():
    board = Board()
    count = rings(board)
    begins = 0.25 + 0.75 * (count - np.floor(count) < 0.4)
    dark = -0.66 + 1.8 * late_wood(count) * (0.85 + 0.2 * board.noise(2, 9))
    dark += 0.22 * board.noise(2, 4) + 0.10 * board.noise(9, 120) + 0.11 * board.noise(30, 420)
    return dark + pores(board) * begins, board.noise(2, 5)


def coloured(dark, warmth):
    channels = [np.interp(dark, DARKNESS, column) for column in zip(*COLOURS)]
    return np.dstack(channels) + warmth[..., None] * REDDER


def draw(width, height):
    if width != height:
        raise ValueError("the board is square")
    pixels = coloured(*darkness())
    # The mean is promised to whatever stands beside the buttons.
    for _ in range(3):
        pixels = np.clip(pixels + MEAN - pixels.mean(axis=(0, 1)), 0, 255)
    board = Image.fromarray(np.rint(pixels).astype(np.uint8), "RGB")
    board = board.resize((width, height), Image.Resampling.BOX)
    return board.quantize(COLOURS_KEPT, kmeans=1, dither=Image.Dither.NONE)
