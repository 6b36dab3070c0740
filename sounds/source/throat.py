"""A throat: folds that sound, breath that does not, and the mouth and nose they are heard through."""

import numpy as np

from strike import SR, resonate

# Three formants each, for a grown man.
HA, HEH, HUH, HO, HEE = (730, 1180, 2500), (560, 1720, 2450), (620, 1250, 2450), (520, 940, 2400), (340, 2050, 2800)
FOURTH = 3500
WIDTHS = (95, 110, 170, 260)
GAINS = (1.0, 0.75, 0.4, 0.22)
NOSE = [(290, 160, 1.0), (1050, 260, 0.8), (2150, 400, 0.5), (3100, 500, 0.3)]
# How far one pulse of the folds strays from the next, in time and in strength.
JITTER, SHIMMER = 0.022, 0.14


def _wandering(rng, turns, reach):
    """One draw for each turn, gliding from each into the next."""
    draws = rng.randn(int(turns[-1]) + 2)
    return 1 + reach * np.interp(turns, np.arange(draws.size), draws)


def folds(rng, pitch):
    """Air between the vocal folds: they open slowly and close sharply."""
    turns = np.cumsum(pitch) / SR
    phase = np.cumsum(pitch * _wandering(rng, turns, JITTER)) / SR % 1.0
    flow = np.where(phase < 0.6, np.sin(np.pi * phase / 1.2) ** 2, 0)
    flow *= np.clip((0.64 - phase) / 0.05, 0, 1)
    return np.diff(flow * _wandering(rng, turns, SHIMMER), prepend=0) * 40


def between(vowel, other, way):
    return tuple(one + way * (two - one) for one, two in zip(vowel, other))


def mouth(source, vowel, size):
    """`size` is above one in a throat shorter than a man's."""
    return sum(gain * resonate(source, hertz * size, width)
               for hertz, width, gain in zip((*vowel, FOURTH), WIDTHS, GAINS))


def nose(source, size):
    return sum(gain * resonate(source, hertz * size, width) for hertz, width, gain in NOSE)
