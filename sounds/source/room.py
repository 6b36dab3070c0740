"""The one room in which all eight recordings stand."""

from functools import lru_cache
from itertools import product

import numpy as np
from scipy.signal import butter, fftconvolve, lfilter, sosfilt

from strike import SR, seeded

SIZE = np.array([13.0, 9.5, 4.2])
EAR = np.array([5.8, 3.1, 1.3])
SOUND = 343.0
REFLECTION = 0.45
REVERBERANT_DISTANCE = 6.0
TAIL = 0.7
# Seconds to fall by 60 dB: curtains and clothes eat the upper octaves first.
DECAY = {125: 0.62, 250: 0.58, 500: 0.55, 1000: 0.5, 2000: 0.44, 4000: 0.34, 8000: 0.24}


def _images(place):
    """Mirror images of a source: (distance, number of reflections)."""
    for cell in product(range(-2, 3), repeat=3):
        bounces = sum(abs(n) for n in cell)
        if bounces > 3:
            continue
        cell = np.array(cell)
        mirrored = np.where(cell % 2 == 0, place, SIZE - place)
        yield np.linalg.norm(cell * SIZE + mirrored - EAR), bounces


def _early(place):
    straight = np.linalg.norm(place - EAR)
    orders = np.zeros((4, int(TAIL * SR)))
    for distance, bounces in _images(place):
        at = (distance - straight) / SOUND * SR
        whole, part = int(at), at - int(at)
        if whole + 1 < orders.shape[1]:
            gain = REFLECTION ** bounces / max(distance, 0.4)
            orders[bounces, whole:whole + 2] += gain * np.array([1 - part, part])
    for bounces in range(1, 4):
        # Each wall takes some treble with it.
        keep = np.exp(-2 * np.pi * 9000 / bounces / SR)
        orders[bounces] = lfilter([1 - keep], [1, -keep], orders[bounces])
    return orders.sum(axis=0)


@lru_cache(maxsize=1)
def _late():
    rng = seeded(1740)
    t = np.arange(int(TAIL * SR)) / SR
    tail = np.zeros(t.size)
    for centre, decay in DECAY.items():
        band = butter(2, [centre / 1.414, min(centre * 1.414, 20000)], "bandpass", fs=SR, output="sos")
        tail += sosfilt(band, rng.randn(t.size)) * 10 ** (-3 * t / decay)
    tail *= 1 - np.exp(-t / 0.012)
    return tail / np.sqrt(np.sum(tail ** 2)) / REVERBERANT_DISTANCE


def heard(sound, x, y, z=0.0):
    """The sound as it arrives from x metres right, y ahead and z above."""
    place = np.clip(EAR + [x, y, z], 0.2, SIZE - 0.2)
    return fftconvolve(sound, _early(place) + _late())[:sound.size]
