"""Is a file what the catalogue says? Needs the standard library alone."""

import struct
from collections import namedtuple
from itertools import groupby
from math import log10
from pathlib import Path

from catalogue import RECORDINGS
from wave_file import parse, samples

FOLDER = Path(__file__).resolve().parent.parent / "recordings"
# A sample seldom stands just where the curve through them is highest.
BELOW_PEAK, ABOVE_PEAK = 1.0, 0.2
REST = 0.005


class Claim(namedtuple("Claim", "what found low high")):
    """A figure found in a recording and the limits it must keep."""

    @property
    def holds(self):
        return self.low <= self.found <= self.high

    def __str__(self):
        return "%-44s %10.6g   (%g to %g)" % self


def exactly(what, found, wanted):
    return Claim(what, found, wanted, wanted)


def _sizes(recording, image, wave):
    yield exactly("whole image, bytes", len(image), recording.image)
    yield exactly("end of the RIFF form, bytes", wave.riff_end, len(image) - recording.fill)
    yield exactly("end of the last chunk, bytes", wave.chunks_end, wave.riff_end)
    yield exactly("zeros behind the form, bytes", image[wave.riff_end:].count(0), recording.fill)
    yield exactly("format chunk, bytes", len(wave.fmt), recording.fmt)
    yield exactly("sample data, bytes", len(wave.data), recording.data)
    yield exactly("pad bytes", len(wave.pad), recording.data % 2)
    yield exactly("chunks after the samples",
                  len(wave.chunks) - 1 - wave.chunks.index(b"data"), bool(recording.chunks))


def _format(recording, wave):
    width = recording.bits // 8
    wanted = (1, 1, recording.rate, recording.rate * width, width, recording.bits)
    names = ("PCM tag", "channels", "samples a second", "bytes a second", "block, bytes", "bits")
    for name, found, want in zip(names, struct.unpack_from("<HHIIHH", wave.fmt), wanted):
        yield exactly(name, found, want)


def _longest_run(values, peak):
    runs = groupby(abs(value) == peak for value in values)
    return max(sum(1 for _ in run) for at_peak, run in runs if at_peak)


def _levels(recording, values):
    peak = max(map(abs, values))
    ends = values[:1] + values[-int(REST * recording.rate):]
    yield Claim("peak, dBFS", 20 * log10(peak or 1e-9), recording.peak - BELOW_PEAK, recording.peak + ABOVE_PEAK)
    yield Claim("longest run of equal peak samples", _longest_run(values, peak), 1, 3)
    yield Claim("mean of all samples, of full scale", abs(sum(values)) / len(values), 0, 0.005)
    yield Claim("first sample and last 5 ms, of full scale", max(map(abs, ends)), 0, 0.01)
    if recording.bits == 8:
        yield exactly("last 5 ms away from 0x80, samples", sum(map(bool, ends[1:])), 0)


def claims(name, image):
    recording, wave = RECORDINGS[name], parse(image)
    yield from _sizes(recording, image, wave)
    yield from _format(recording, wave)
    yield from _levels(recording, samples(wave.data, recording.bits))


def path(name):
    return FOLDER / (name + ".wav")
