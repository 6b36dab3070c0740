"""Recordings spoilt so that a check must refuse them. A check that nothing can fail shows nothing."""

import numpy as np
from scipy.signal import resample_poly

import character
import form_check
import loudness
import measure as m
import wave_file
from catalogue import RECORDINGS
from character import played
from yardstick import between_samples


def _door(change):
    """The file rebuilt whole, so that nothing but its samples is at fault."""
    def spoil(image):
        values = np.frombuffer(wave_file.parse(image).data, np.uint8).astype(int) - 128
        return wave_file.build(RECORDINGS["DOORSHUT"], (change(values) + 128).astype(np.uint8).tobytes())
    return spoil


def _seconds(x, rate):
    return np.arange(x.size) / rate


def _sine(x, rate, hertz):
    return np.sin(2 * np.pi * hertz * _seconds(x, rate))


def _still(x, rate, begin, end):
    """The same, but for a stretch that holds next to nothing."""
    seconds = _seconds(x, rate)
    return np.where((seconds > begin) & (seconds < end), x / 1000, x)


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
    ("ROLLDICE", "one knock", "onsets a second", lambda x, r: _still(x, r, 0.012, 1)),
    ("ROLLDICE", "a die too late", "smallest jump where a die lands, dB", lambda x, r: _still(x, r, 0.1, 0.12)),
    ("ROLLDICE", "at once", "between the landings, dB to the loudest", lambda x, r: x + np.roll(x, round(0.025 * r))),
    ("ROLLDICEEND", "a thud", "spectral centroid, Hz", lambda x, r: m.band(x, r, high=400)),
    ("APPLAUSE", "a loop", "envelope periodicity", lambda x, r: np.resize(m.part(x, r, 1, 1.3), x.size)),
    ("APPLAUSE", "between the samples", "true peak, dB", lambda x, r: x + between_samples(x.size)),
    ("ELEVATOR", "a dead plate", "20 dB down after, s", lambda x, r: x * np.exp(-_seconds(x, r) / 0.1)),
    ("ELEVATOR", "cut off", "left before the file's end, dB to the loudest",
     lambda x, r: x * np.exp(_seconds(x, r) * 4)),
    ("ELEVATOR", "a tone", "partials above the prime, dB to it", lambda x, r: m.band(x, r, high=2300)),
    ("ELEVATOR", "loud", "loudness as heard, LUFS", lambda x, r: x * 2),
    ("PEOPLELAUGH", "no end", "slope from 5 to 6.2 s, dB a second", lambda x, r: np.resize(x[r:4 * r], x.size)),
    ("PEOPLELAUGH", "slower", "calls a second", lambda x, r: resample_poly(x, 10, 9)[:x.size]),
    ("PEOPLELAUGH", "faster", "calls a second", lambda x, r: resample_poly(x, 9, 10)),
    ("PEOPLELAUGH", "no swell", "first laughs, dB to the crowd", lambda x, r: np.roll(x, -r)),
    ("PEOPLELAUGH", "no squeals", "squeals from 500 to 800 Hz", lambda x, r: m.band(x, r, low=1100)),
    ("RULEBRITANNIA", "low", "notes of the tune at their pitch", lambda x, r: resample_poly(x, 18, 17)[:x.size]),
    ("RULEBRITANNIA", "let go", "last chord held until, s", lambda x, r: _still(x, r, 3.8, 4.4)),
    ("DOORSHUT", "a latch alone", "energy below 250 Hz", lambda x, r: m.band(x, r, low=500)),
    ("DOORSHUT", "a rumble", "lost on a small loudspeaker, LU", lambda x, r: x + 2 * _sine(x, r, 63) * np.abs(x)),
    ("DOORSHUT", "one click", "clicks after the thump", lambda x, r: _still(x, r, 0.18, 1)),
]
# The loudness of one recording moved, and the claim about all of them that has to fail.
OUT_OF_BALANCE = [
    ("DOORSHUT", -19, "dice, people and door apart, LU"),
    ("ELEVATOR", -15.5, "a run of bells under the dice, LU"),
    ("RULEBRITANNIA", -15, "fanfare over everything else, LU"),
]


def _of_file(name, spoil):
    return form_check.claims(name, spoil(form_check.path(name).read_bytes()))


def _of_samples(name, spoil):
    samples, rate = played(name, form_check.path(name).read_bytes())
    spoilt = spoil(samples, rate)
    return [*character.claims(name, spoilt, rate), *loudness.claims(name, spoilt, rate)]


def _refused(claims, fault, name, what):
    claim = next(claim for claim in claims if claim.what == fault)
    return not claim.holds, "refused: %s, %s: %s is %.4g" % (name, what, fault, claim.found)


def refusals(heard):
    """(was it refused, a line that says so) for every one; `heard` is the
    loudness of each recording."""
    for claims, rows in ((_of_file, BROKEN), (_of_samples, TOYS)):
        for name, what, fault, spoil in rows:
            yield _refused(claims(name, spoil), fault, name, what)
    for name, lufs, fault in OUT_OF_BALANCE:
        yield _refused(loudness.balance({**heard, name: lufs}), fault, name, "at %g LUFS" % lufs)
