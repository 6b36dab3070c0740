"""Recordings spoilt so that a check must refuse them. A check that nothing can fail shows nothing."""

import numpy as np
from scipy.signal import resample_poly

import form_check
import measure as m
import wave_file
from catalogue import RECORDINGS
from character import CHARACTERS, played


def _door(change):
    """The file rebuilt whole, so that nothing but its samples is at fault."""
    def spoil(image):
        values = np.frombuffer(wave_file.parse(image).data, np.uint8).astype(int) - 128
        return wave_file.build(RECORDINGS["DOORSHUT"], (change(values) + 128).astype(np.uint8).tobytes())
    return spoil


# Recording, what has become of it, the claim that has to fail, and what spoils the file or the samples.
BROKEN = [
    ("ELEVATOR", "RIFF size short", "end of the RIFF form, bytes", lambda i: i[:4] + b"\xb2" + i[5:]),
    ("APPLAUSE", "cut short", "whole image, bytes", lambda i: i[:-20]),
    ("APPLAUSE", "a chunk overrunning", "end of the last chunk, bytes", lambda i: i.replace(b"LIST\xfc", b"LIST\xff")),
    ("ROLLDICEEND", "no pad byte", "pad bytes", lambda i: i.replace(b"data\x4b", b"data\x4c")),
    ("DOORSHUT", "another rate", "samples a second", lambda i: i[:24] + b"\x11" + i[25:]),
    ("DOORSHUT", "clipped", "longest run of equal peak samples", _door(lambda v: np.clip(v * 3, -114, 114))),
    ("DOORSHUT", "quiet", "peak, dBFS", _door(lambda v: v // 2)),
    ("DOORSHUT", "cut in", "first sample and last 5 ms, of full scale", _door(lambda v: np.roll(v, -v.size // 8))),
]
TOYS = [
    ("SHAKEDICE", "no pause", "pause from 3.1 to 3.4 s, dB to the loudest", lambda x, r: x + np.roll(x, 2 * r)),
    ("ROLLDICE", "one knock", "onsets a second", lambda x, r: np.where(np.arange(x.size) < 0.012 * r, x, x / 1000)),
    ("ROLLDICEEND", "a thud", "spectral centroid, Hz", lambda x, r: m.band(x, r, high=400)),
    ("APPLAUSE", "a loop", "envelope periodicity", lambda x, r: np.resize(m.part(x, r, 1, 1.3), x.size)),
    ("ELEVATOR", "a dead plate", "20 dB down after, s", lambda x, r: x * np.exp(-np.arange(x.size) / r / 0.1)),
    ("PEOPLELAUGH", "no end", "slope from 5 to 6.2 s, dB a second", lambda x, r: np.resize(x[r:4 * r], x.size)),
    ("RULEBRITANNIA", "low", "notes of the tune at their pitch", lambda x, r: resample_poly(x, 18, 17)[:x.size]),
    ("DOORSHUT", "a latch alone", "energy below 250 Hz", lambda x, r: m.band(x, r, low=500)),
]


def _of_file(name, spoil):
    return form_check.claims(name, spoil(form_check.path(name).read_bytes()))


def _of_samples(name, spoil):
    samples, rate = played(name, form_check.path(name).read_bytes())
    return CHARACTERS[name](spoil(samples, rate), rate)


def refusals():
    """(was it refused, a line that says so) for every one."""
    for claims, rows in ((_of_file, BROKEN), (_of_samples, TOYS)):
        for name, what, fault, spoil in rows:
            claim = next(claim for claim in claims(name, spoil) if claim.what == fault)
            yield not claim.holds, "refused: %s, %s: %s is %.4g" % (name, what, fault, claim.found)
