"""From a rendered track to the sample bytes of a recording."""

from math import gcd

import numpy as np
from scipy.signal import butter, resample_poly, sosfiltfilt

from strike import SR, seeded


def _fit(track, rate, frames):
    step = gcd(rate, SR)
    out = resample_poly(track, rate // step, SR // step)[:frames]
    return np.pad(out, (0, frames - out.size))


def _edges(signal, rate):
    """Starts from rest, and rests for the last moments of the file."""
    rise, still = int(0.0008 * rate) + 1, int(0.006 * rate)
    fall = min(int(0.12 * rate), signal.size // 7)
    signal[:rise] *= np.linspace(0, 1, rise)
    signal[-still:] = 0
    signal[-still - fall:-still] *= 0.5 + 0.5 * np.cos(np.linspace(0, np.pi, fall))
    return signal


def _dither(signal, rate, step, rng):
    """Triangular noise of one step that comes and goes with the sound, so
    that silence stays exactly the middle value."""
    reach = max(1, int(0.01 * rate))
    level = np.sqrt(np.convolve(signal ** 2, np.ones(reach) / reach, "same"))
    noise = rng.rand(signal.size) - rng.rand(signal.size)
    return 0.5 * step * noise * np.clip(level / step * 2 - 0.5, 0, 1)


def pcm(track, recording):
    frames = recording.data // (recording.bits // 8)
    rumble = butter(2, 30, "highpass", fs=SR, output="sos")
    signal = _fit(sosfiltfilt(rumble, track), recording.rate, frames)
    signal = _edges(signal, recording.rate)
    signal *= 10 ** (recording.peak / 20) / np.abs(signal).max()
    full = 2 ** (recording.bits - 1)
    signal += _dither(signal, recording.rate, 1 / full, seeded(frames))
    steps = np.rint(signal * full).astype(int)
    if recording.bits == 8:
        return (steps + 128).astype(np.uint8).tobytes()
    return steps.astype("<i2").tobytes()
