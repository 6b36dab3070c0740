"""Toys and broken files that the checks must refuse, each for its own fault.

A check that nothing can fail shows nothing, so these run beside the real ones.
"""

from collections import namedtuple

import numpy as np
from scipy.signal import resample_poly

import form_check
import measure as m
import wave_file
from catalogue import RECORDINGS
from character import CHARACTERS, played

# `spoil` turns the real samples (or image) into the toy; `fault` is the claim
# that has to fail.
Toy = namedtuple("Toy", "name what fault spoil")


def _noise(x, rate, centre):
    """Noise in the colour of the sound and with its slow envelope, no more."""
    hiss = np.random.RandomState(1).randn(x.size)
    hiss = m.band(m.band(hiss, rate, high=centre * 2), rate, low=centre / 2)
    slow = m.levels(x, rate, 0.6)
    return hiss * np.interp(np.arange(x.size) / rate, m.moments(x, rate, 0.6), slow) / hiss.std()


def _loop(x, rate, begin, seconds):
    return np.resize(m.part(x, rate, begin, begin + seconds), x.size)


def _oscillator(x, rate):
    t = np.arange(x.size) / rate
    return np.exp(-t / 0.25) * sum(np.sin(2 * np.pi * 1975 * n * t) / n for n in (1, 2, 3, 4, 5))


TOYS = [
    Toy("SHAKEDICE", "a burst of noise", "kurtosis above 2 kHz", lambda x, r: _noise(x, r, 2500)),
    Toy("SHAKEDICE", "no pause", "pause from 3.1 to 3.4 s, dB to the loudest",
        lambda x, r: x + np.roll(x, 2 * r)),
    Toy("SHAKEDICE", "at once", "level up to 0.55 s, dB", lambda x, r: np.roll(x, -r // 4)),
    Toy("SHAKEDICE", "late", "first rattle, s", lambda x, r: np.roll(x, r // 20)),
    Toy("ROLLDICE", "one knock", "onsets a second",
        lambda x, r: np.where(np.arange(x.size) < 0.012 * r, x, x / 1000)),
    Toy("ROLLDICEEND", "drawn out", "20 dB down after, s", lambda x, r: resample_poly(x, 4, 1)[:x.size]),
    Toy("ROLLDICEEND", "a thud", "spectral centroid, Hz", lambda x, r: m.band(x, r, high=400)),
    Toy("APPLAUSE", "noise", "envelope variation", lambda x, r: _noise(x, r, 1800)),
    Toy("APPLAUSE", "a loop", "envelope periodicity", lambda x, r: _loop(x, r, 1, 0.3)),
    Toy("APPLAUSE", "cut off", "last 0.1 s, dB", lambda x, r: np.roll(x, r)),
    Toy("ELEVATOR", "an oscillator", "inharmonic partials", _oscillator),
    Toy("ELEVATOR", "an octave low", "strongest partial, Hz", lambda x, r: resample_poly(x, 2, 1)[:x.size]),
    Toy("ELEVATOR", "a dead plate", "20 dB down after, s", lambda x, r: x * np.exp(-np.arange(x.size) / r / 0.1)),
    Toy("PEOPLELAUGH", "a murmur", "envelope variation", lambda x, r: _noise(x, r, 900)),
    Toy("PEOPLELAUGH", "a loop", "envelope periodicity", lambda x, r: _loop(x, r, 2, 0.7)),
    Toy("PEOPLELAUGH", "too slow", "peak of the envelope's spectrum, Hz",
        lambda x, r: resample_poly(x, 2, 1)[:x.size]),
    Toy("PEOPLELAUGH", "no end", "slope from 5 to 6.2 s, dB a second", lambda x, r: _loop(x, r, 1, 3)),
    Toy("RULEBRITANNIA", "half a tone low", "notes of the tune at their pitch",
        lambda x, r: resample_poly(x, 18, 17)[:x.size]),
    Toy("RULEBRITANNIA", "dull", "harmonics visible up to, Hz", lambda x, r: m.band(x, r, high=3000)),
    Toy("RULEBRITANNIA", "one chord", "note onsets", lambda x, r: _loop(x, r, 3.2, 0.5)),
    Toy("DOORSHUT", "thump first", "latch before the thump by, s",
        lambda x, r: m.band(x, r, low=1500) + np.roll(m.band(x, r, high=600), -r // 25)),
    Toy("DOORSHUT", "a latch alone", "energy below 250 Hz", lambda x, r: m.band(x, r, low=500)),
]


def _resized(image, by):
    return image[:4] + (len(image) - 8 + by).to_bytes(4, "little") + image[8:]


def _with_samples(name, change):
    """The file rebuilt whole, so that nothing but its samples is at fault."""
    def spoil(image):
        values = np.frombuffer(wave_file.parse(image).data, np.uint8).astype(int) - 128
        return wave_file.build(RECORDINGS[name], (change(values) + 128).astype(np.uint8).tobytes())
    return spoil


BROKEN = [
    Toy("ELEVATOR", "RIFF size short", "end of the RIFF form, bytes", lambda i: _resized(i, -2)),
    Toy("APPLAUSE", "cut short", "whole image, bytes", lambda i: i[:-20]),
    Toy("APPLAUSE", "a chunk overrunning", "end of the last chunk, bytes",
        lambda i: i.replace(b"LIST\xfc", b"LIST\xff")),
    Toy("PEOPLELAUGH", "no further chunk", "chunks after the samples", lambda i: _resized(i[:-66], 0)),
    Toy("ROLLDICEEND", "no pad byte", "pad bytes", lambda i: i.replace(b"data\x4b", b"data\x4c")),
    Toy("DOORSHUT", "another rate", "samples a second", lambda i: i[:24] + b"\x11" + i[25:]),
    Toy("DOORSHUT", "clipped", "longest run of equal peak samples",
        _with_samples("DOORSHUT", lambda v: np.clip(v * 3, -114, 114))),
    Toy("DOORSHUT", "quiet", "peak, dBFS", _with_samples("DOORSHUT", lambda v: v // 2)),
    Toy("DOORSHUT", "off centre", "mean of all samples, of full scale",
        _with_samples("DOORSHUT", lambda v: v + 1)),
    Toy("DOORSHUT", "not at rest", "last 5 ms away from 0x80, samples",
        _with_samples("DOORSHUT", lambda v: np.where(np.arange(v.size) > v.size - 9, 1, v))),
    Toy("DOORSHUT", "cut in", "first sample and last 5 ms, of full scale",
        _with_samples("DOORSHUT", lambda v: np.roll(v, -v.size // 8))),
]


def _claims(toy):
    image = form_check.path(toy.name).read_bytes()
    if toy in BROKEN:
        return form_check.claims(toy.name, toy.spoil(image))
    values, rate = played(toy.name, image)
    return CHARACTERS[toy.name](toy.spoil(values, rate), rate)


def refusals():
    """(was it refused, a line that says so) for every toy."""
    for toy in BROKEN + TOYS:
        claim = next(claim for claim in _claims(toy) if claim.what == toy.fault)
        yield not claim.holds, "refused: %s, %s: %s is %.4g" % (toy.name, toy.what, toy.fault, claim.found)
