"""The loudness meter held against what the standards say of known signals."""

import numpy as np

import loudness
from catalogue import RECORDINGS
from form_check import Claim


def _tone(rate, seconds, hertz=997.0, level=0.0):
    return 10 ** (level / 20) * np.sin(2 * np.pi * hertz * np.arange(int(seconds * rate)) / rate)


def between_samples(size):
    """A tone of one whose samples all lie beside its peaks."""
    return np.sin(np.pi * (np.arange(size) / 2 + 0.25))


def _claims():
    for rate in sorted({recording.rate for recording in RECORDINGS.values()}):
        yield Claim("full tone at %d Hz, LUFS" % rate, loudness.integrated(_tone(rate, 2), rate), -3.05, -2.97)
    low, high = (loudness.integrated(_tone(22050, 2, hertz), 22050) for hertz in (50, 6000))
    yield Claim("a low tone against a high one, LU", low - high, -8.1, -7.8)
    soft, plain = _tone(8000, 4, level=-45), _tone(8000, 4, level=-23)
    gated = loudness.integrated(np.concatenate((soft, plain, soft)), 8000)
    yield Claim("a tone between softer ones, LUFS", gated, -26.5, -25.9)
    yield Claim("half its length silent, gated, LUFS",
                loudness.integrated(np.concatenate((_tone(8000, 4), np.zeros(32000))), 8000), -3.3, -2.97)
    yield Claim("half its length silent, ungated, LUFS",
                loudness.integrated(np.concatenate((_tone(8000, 0.3), np.zeros(2400))), 8000), -6.1, -5.9)
    yield Claim("samples at 0.71 of the peak, dB",
                loudness.true_peak(between_samples(8000) * np.hanning(8000), 8000), -0.2, 0.2)


def yardstick():
    for claim in _claims():
        yield claim.holds, "meter: %s" % (claim,)
