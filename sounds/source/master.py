"""From a rendered track to the sample bytes of a recording."""

from math import gcd

import numpy as np
from scipy.ndimage import minimum_filter1d
from scipy.signal import butter, resample_poly, sosfiltfilt

import loudness
from catalogue import RECORDINGS
from strike import SR, seeded

# The limiter is down before a peak comes, and lets go slowly enough not to growl.
AHEAD, RELEASE = 0.0015, 0.03


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


def _let_go(gain, rate):
    """Falls at once, rises at the pace of the release."""
    out, held, pace = np.empty(gain.size), 1.0, 1 / (RELEASE * rate)
    for at, needed in enumerate(gain):
        held = min(needed, held + (1 - held) * pace)
        out[at] = held
    return out


def _limited(signal, rate, ceiling):
    """Keeps the curve through the samples, not the samples alone, under the
    ceiling. Smoothing over the width of the minimum never rises above need."""
    between = np.abs(resample_poly(signal, 4, 1)).reshape(-1, 4).max(axis=1)
    between = np.maximum(between, np.roll(between, 1))
    width = 2 * int(AHEAD * rate) + 1
    down = minimum_filter1d(_let_go(np.minimum(1, ceiling / (between + 1e-9)), rate), width)
    window = np.hanning(width + 2)[1:-1]
    return signal * np.convolve(np.pad(down, width // 2, "edge"), window / window.sum(), "valid")


def _mastered(signal, name, recording):
    """As loud as it has to be under its ceiling: the louder it goes in, the
    more the limiter leans on it."""
    ceiling, signal = 10 ** (recording.peak / 20), signal / np.abs(signal).max()
    quiet, loud = -30.0, 30.0
    while loud - quiet > 0.01:
        gain = (quiet + loud) / 2
        out = _limited(signal * 10 ** (gain / 20), recording.rate, ceiling)
        if loudness.as_heard(name, out, recording.rate) < loudness.WANTED[name]:
            quiet = gain
        else:
            loud = gain
    return out


def _dither(signal, rate, step, rng):
    """Triangular noise of one step that comes and goes with the sound, so
    that silence stays exactly the middle value."""
    reach = max(1, int(0.01 * rate))
    level = np.sqrt(np.convolve(signal ** 2, np.ones(reach) / reach, "same"))
    noise = rng.rand(signal.size) - rng.rand(signal.size)
    return 0.5 * step * noise * np.clip(level / step * 2 - 0.5, 0, 1)


def pcm(track, name):
    recording = RECORDINGS[name]
    frames = recording.data // (recording.bits // 8)
    rumble = butter(2, 30, "highpass", fs=SR, output="sos")
    signal = _fit(sosfiltfilt(rumble, track), recording.rate, frames)
    signal = _mastered(_edges(signal, recording.rate), name, recording)
    full = 2 ** (recording.bits - 1)
    signal += _dither(signal, recording.rate, 1 / full, seeded(frames))
    steps = np.rint(signal * full).astype(int)
    if recording.bits == 8:
        return (steps + 128).astype(np.uint8).tobytes()
    return steps.astype("<i2").tobytes()
