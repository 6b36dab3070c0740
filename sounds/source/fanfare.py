"""Brass and drums play the opening of the tune of 1740.

The score is set here, written as a MIDI file, rendered one desk at a time by
fluidsynth, and each desk is given its seat in the room.
"""

import struct
import subprocess
import tempfile
from collections import namedtuple
from pathlib import Path

import numpy as np
from scipy.io import wavfile

from room import heard
from strike import SR, pressed, seeded

FONT = "/usr/share/sounds/sf2/FluidR3_GM.sf2"
BEAT = 0.455
TICKS = 960
LENGTH = 4.5
HOLD = 2.69
ACCENTS = (0.5, 3.5, 4.5, 6.5)

# Notes are (beat, beats, keys...); the tune stands in B flat.
TUNE = [(0, .5, 65), (.5, 1, 70), (1.5, 1, 70), (2.5, .25, 70), (2.75, .25, 72), (3, .25, 74), (3.25, .25, 75),
        (3.5, .5, 77), (4, .5, 70), (4.5, 1, 72), (5.5, .5, 72), (6, .25, 74), (6.25, .25, 75), (6.5, HOLD, 74)]
BELOW = [(0, .5, 65), (.5, 1, 65), (1.5, 1, 62), (2.5, .25, 62), (2.75, .25, 63), (3, .25, 65), (3.25, .25, 67),
         (3.5, .5, 74), (4, .5, 65), (4.5, 1, 69), (5.5, .5, 69), (6, .25, 70), (6.25, .25, 72), (6.5, HOLD, 70)]
HORNS = [(.5, .9, 58, 62), (1.5, .9, 58, 53), (2.5, 1, 58, 65), (3.5, .9, 58, 65),
         (4.5, 1, 60, 65), (5.5, .9, 57, 63), (6.5, HOLD, 58, 65)]
BASS = [(.5, .9, 46), (1.5, .9, 46), (2.5, .9, 46), (3.5, .9, 50), (4.5, .9, 53), (5.5, .9, 41), (6.5, HOLD, 46)]
TIMPANI = [(.5, .5, 46), (1.5, .5, 46), (2.5, .5, 46), (3.5, .5, 46), (4.5, .5, 41), (5.5, .5, 41), (6, .5, 41),
           (6.5, .5, 46)]
KETTLE_ROLL = [(6.625 + n * .125, .3, 46) for n in range(17)]
SNARE = [(beat, .2, 38) for beat in (.5, 1.5, 2.5, 3.25, 3.5, 4.5, 5.5, 6, 6.25, 6.5)]
SNARE_ROLL = [(beat, .1, 38) for beat in (0, .125, .25, .375, 2, 2.25, 3, 4, 4.25, 5.75)] + [
    (6.625 + n * .0833, .1, 38) for n in range(21)]
CRASH = [(.5, 2, 49, 35), (3.5, 2, 57, 35), (6.5, 3, 49, 35)]

# A desk: instrument, seat (right, ahead), level, force of stroke or breath.
Desk = namedtuple("Desk", "program x y level force lines")
DRUMS = 0
DESKS = [Desk(56, -1.0, 2.6, 1.0, 106, [TUNE, TUNE, TUNE]), Desk(56, -0.3, 2.7, 0.9, 99, [BELOW, BELOW]),
         Desk(57, 0.8, 2.8, 0.6, 98, [HORNS, BELOW]), Desk(60, 1.5, 3.2, 0.45, 98, [HORNS, HORNS]),
         Desk(58, 1.8, 3.0, 0.55, 106, [BASS]), Desk(57, 1.2, 2.9, 0.5, 104, [BASS]),
         Desk(47, -1.8, 3.4, 0.9, 98, [TIMPANI]), Desk(47, -1.8, 3.4, 0.9, 70, [KETTLE_ROLL]),
         Desk(DRUMS, 0.4, 3.6, 1.0, 94, [SNARE]), Desk(DRUMS, 0.4, 3.6, 1.0, 62, [SNARE_ROLL]),
         Desk(DRUMS, 0.0, 3.8, 0.9, 98, [CRASH])]


def _ticks(count, more=0):
    """Seven bits a byte, the last one without the mark for more."""
    return (_ticks(count >> 7, 128) if count > 127 else b"") + bytes([count & 127 | more])


def _player(rng, desk, line, channel):
    """Players breathe: each is a little out of tune, early or late, presses
    more or less, and lets a note go before the next."""
    bend = 8192 + int(np.clip(240 * rng.randn(), -450, 450))
    yield 0, bytes([0xC0 | channel, desk.program])
    yield 0, bytes([0xE0 | channel, bend & 127, bend >> 7])
    late = 0.004 + max(0, 0.005 * rng.randn())
    for beat, beats, *keys in line:
        short = 0.67 if beats <= 0.5 else 0.86
        for key in keys:
            start = beat * BEAT + late + abs(0.003 * rng.randn())
            force = desk.force + (12 if beat in ACCENTS else 0) + 4 * rng.randn()
            yield start, bytes([0x90 | channel, key, int(np.clip(force, 1, 127))])
            yield start + beats * BEAT * short, bytes([0x80 | channel, key, 0])


def _score(rng, desk):
    events = [event for player, line in enumerate(desk.lines)
              for event in _player(rng, desk, line, 9 if desk.program == DRUMS else player)]
    track, last = b"\0\xff\x51\x03\x0f\x42\x40", 0  # a beat of MIDI is one second
    for seconds, message in sorted(events, key=lambda event: event[0]):
        tick = int(seconds * TICKS)
        track += _ticks(tick - last) + message
        last = tick
    track += _ticks(TICKS) + b"\xff\x2f\0"
    return struct.pack(">4sIHHH4sI", b"MThd", 6, 0, 1, TICKS, b"MTrk", len(track)) + track


def _render(rng, desk, folder):
    midi, wave = folder / "desk.mid", folder / "desk.wav"
    midi.write_bytes(_score(rng, desk))
    subprocess.run(["fluidsynth", "-niq", "-R0", "-C0", "-g0.5", f"-r{SR}", "-Twav", "-F", wave,
                    FONT, midi], check=True, stdout=subprocess.DEVNULL)
    sound = wavfile.read(wave)[1].mean(axis=1) / 32768
    return np.pad(sound, (0, int(LENGTH * SR)))[:int(LENGTH * SR)]


def fanfare():
    rng = seeded(1740)
    with tempfile.TemporaryDirectory() as folder:
        band = sum(desk.level * heard(_render(rng, desk, Path(folder)), desk.x, desk.y) for desk in DESKS)
    return pressed(band, 1.4)
