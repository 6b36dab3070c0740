"""Thirty-four people laughing: aloud, on the breath, through the nose."""

from collections import namedtuple

import numpy as np

from room import heard
from strike import SR, pressed, put, seeded, silence
from throat import HA, HEE, HEH, HO, HUH, between, folds, mouth, nose

Voice = namedtuple("Voice", "pitch size rate breathy level")
LENGTH = 6.7
VOICES = 34
IN_FRONT = 8
VOWELS, LIKELY = [HA, HEH, HUH, HO, HEE], [0.4, 0.2, 0.25, 0.1, 0.05]
# The level of a squeal; that of one of the crowd is about one.
SHRILL = 9
# How low and how high a laugh goes; only a squeal goes higher.
LOWEST, HIGHEST = 240, 590
# The joke reaches everyone at about the same time: the moment it bursts out.
BURST = 0.55
# About when somebody cannot hold it any longer, and how high that goes.
SQUEALS = [(1.3, 690), (2.7, 770), (4.2, 730)]


def _voice(rng, front):
    woman = rng.rand() < 0.5
    pitch = rng.uniform(320, 430) if woman else rng.uniform(245, 330)
    size = rng.uniform(1.1, 1.24) if woman else rng.uniform(0.93, 1.06)
    level = 10 ** (rng.uniform(9, 12) / 20) if front else np.exp(0.3 * rng.randn())
    return Voice(pitch, size, rng.uniform(4.5, 5.5), rng.uniform(0.15, 0.5), level)


def _swell(t):
    return 0.6 + 0.4 * np.clip(t / BURST, 0, 1) + np.exp(-((t - BURST) / 0.25) ** 2)


def _length(rng, gap):
    return min(rng.triangular(0.06, 0.085, 0.18), 0.75 * gap)


def _in_reach(pitch):
    """A laugh that would leave its reach is moved as a whole, and keeps its curve."""
    return pitch * min(1, HIGHEST / pitch.max()) * max(1, LOWEST / pitch.min())


def _aloud(rng, voice, vowel, effort, gap):
    """One ha: breath, then a note that arches up and falls."""
    note, breath = _length(rng, gap), rng.uniform(0.035, 0.07)
    size = int((note + breath + 0.03) * SR)
    t = np.arange(size) / SR - breath
    arch = np.sin(np.pi * np.clip(t / (note + 0.03), 0, 1) ** rng.uniform(0.5, 0.9))
    pitch = voice.pitch * (0.78 + effort * (0.2 + 0.24 * arch)) * np.exp(0.06 * rng.randn())
    voiced = np.clip(t / 0.014, 0, 1) * np.clip((note + 0.028 - t) / 0.03, 0, 1)
    aspirate = np.clip((t + breath) / 0.03, 0, 1) * np.clip((note + 0.03 - t) / 0.05, 0, 1)
    noise = rng.randn(size) * aspirate * voice.breathy * (0.75 - 0.45 * voiced)
    return mouth(folds(rng, _in_reach(pitch)) * voiced + noise, vowel, voice.size)


def _breathed(rng, voice, vowel, _, gap):
    """The same without the folds: a puff of the chest, lips and throat."""
    note = _length(rng, gap)
    t = np.arange(int((note + 0.05) * SR)) / SR
    puff = np.clip(t / 0.012, 0, 1) * np.clip((note + 0.05 - t) / 0.06, 0, 1) ** 1.5
    return mouth(rng.randn(t.size) * puff * rng.uniform(1.3, 2.0), vowel, voice.size)


def _snorted(rng, voice, _vowel, _effort, gap):
    """The palate flutters in the stream of air."""
    note = _length(rng, gap)
    t = np.arange(int((note + 0.03) * SR)) / SR
    flutter = np.clip(np.sin(2 * np.pi * rng.uniform(38, 65) * t + 3 * rng.rand()) + 0.3 * rng.randn(), 0, 1)
    stream = np.clip(t / 0.02, 0, 1) * np.clip((note + 0.03 - t) / 0.04, 0, 1)
    return nose(rng.randn(t.size) * stream * (0.25 + flutter), voice.size) * rng.uniform(1.4, 2.1)


# More than a third of all laughing has no voice in it. It is softer, but not
# so soft that a crowd covers it.
WAYS, USUAL = [_aloud, _breathed, _snorted], [0.58, 0.3, 0.12]


def _in_breath(rng, voice):
    size = int(rng.uniform(0.2, 0.32) * SR)
    return mouth(rng.randn(size) * np.hanning(size) * 0.3 * voice.breathy, HUH, voice.size)


def _vowels(rng, calls):
    """From one vowel towards another while the laugh runs down."""
    first, last = rng.choice(5, p=LIKELY), rng.choice(5, p=LIKELY)
    for call in range(calls):
        vowel = between(VOWELS[first], VOWELS[last], call / calls)
        yield between(vowel, HUH, 0.25 * rng.rand())


def _bout(rng, voice, track, t, until):
    """Bursts out, then runs down: each call weaker, lower and later."""
    effort, gap = rng.uniform(0.9, 1.25), 1 / voice.rate
    way = WAYS[rng.choice(3, p=USUAL)]
    voice = voice._replace(pitch=voice.pitch * np.exp(0.08 * rng.randn()))
    for vowel in _vowels(rng, rng.randint(5, 13) if way is _aloud else rng.randint(3, 8)):
        if t > until:
            break
        strength = effort * np.exp(0.18 * rng.randn())
        put(track, t, way(rng, voice, vowel, strength, gap), strength * _swell(t))
        t += gap * (1 + 0.1 * rng.randn())
        gap *= rng.uniform(0.98, 1.06)
        effort *= rng.uniform(0.9, 1.0)
    put(track, t, _in_breath(rng, voice))
    return t + rng.uniform(0.2, 0.8)


def _alone(rng, voice, begin, until):
    track, t = silence(LENGTH), begin
    while t < until:
        t = _bout(rng, voice, track, t, until)
    t = np.arange(track.size) / SR
    # Whether a harmonic meets a formant does not decide who is loud.
    track *= voice.level / np.sqrt(np.mean(track ** 2))
    return track * (1 - 0.7 * np.clip((t - 4.8) / 1.5, 0, 1))


def _squeal(rng, top):
    """Up in one go, unsteady at the top, and down again."""
    seconds = rng.uniform(0.34, 0.46)
    way = np.linspace(0, 1, int(seconds * SR))
    wobble = 1 + 0.025 * np.sin(2 * np.pi * rng.uniform(7, 11) * seconds * way + 6 * rng.rand())
    pitch = top * (0.78 + 0.22 * np.sin(np.pi * way ** 0.8)) * wobble
    shape = np.clip(way / 0.12, 0, 1) * np.clip((1 - way) / 0.3, 0, 1)
    source = folds(rng, pitch) + 0.12 * rng.randn(way.size)
    sound = mouth(source * shape, between(HA, HEE, rng.uniform(0.2, 0.6)), 1.2)
    return sound / np.sqrt(np.mean(sound ** 2))


def _seat(rng, front):
    far = rng.uniform(1.5, 1.9) if front else rng.uniform(2.0, 5.5)
    angle = rng.uniform(-1.3, 1.3)
    return far * np.sin(angle), far * np.cos(angle)


def laughter():
    # Chosen among many: the rhythm of so few people differs from draw to draw.
    rng = seeded(30)
    crowd = silence(LENGTH)
    for person in range(VOICES):
        front = person < IN_FRONT
        begin = 2.4 * rng.beta(0.9, 2) if front else min(rng.exponential(0.25), 1.4)
        alone = _alone(rng, _voice(rng, front), begin, rng.uniform(4.7, 6.4))
        crowd += heard(alone, *_seat(rng, front))
    for about, top in SQUEALS:
        squealing = silence(LENGTH)
        put(squealing, about + rng.uniform(-0.3, 0.3), _squeal(rng, top), SHRILL)
        crowd += heard(squealing, *_seat(rng, True))
    return pressed(crowd, 0.6)
