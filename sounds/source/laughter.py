"""Thirty-four voices laughing, each with its own throat and its own bouts."""

from collections import namedtuple

import numpy as np

from room import heard
from strike import SR, pressed, put, resonate, seeded, silence

Voice = namedtuple("Voice", "pitch throat vowel rate breathy level")
LENGTH = 6.7
VOICES = 34
IN_FRONT = 7
# Three formants each, for a grown man: ha, heh, huh, ho, hee.
VOWELS = [(730, 1180, 2500), (560, 1720, 2450), (620, 1250, 2450), (520, 940, 2400), (340, 2050, 2800)]
LIKELY = [0.4, 0.2, 0.25, 0.1, 0.05]
WIDTHS = (95, 110, 170, 260)
GAINS = (1.0, 0.75, 0.4, 0.22)


def _voice(rng, front):
    woman = rng.rand() < 0.5
    pitch = rng.uniform(205, 300) if woman else rng.uniform(128, 190)
    throat = rng.uniform(1.1, 1.24) if woman else rng.uniform(0.93, 1.06)
    level = 10 ** (rng.uniform(7.5, 10) / 20) if front else np.exp(0.3 * rng.randn())
    return Voice(pitch, throat, VOWELS[rng.choice(5, p=LIKELY)], rng.uniform(4.1, 5.6),
                 rng.uniform(0.15, 0.5), level)


def _folds(rng, pitch):
    """Air through the vocal folds: slow opening, sharp closing, never quite
    regular."""
    drift = np.repeat(rng.randn(pitch.size // 220 + 1), 220)[:pitch.size]
    phase = np.cumsum(pitch * (1 + 0.012 * drift)) / SR % 1.0
    flow = np.where(phase < 0.6, np.sin(np.pi * phase / 1.2) ** 2, 0)
    flow *= np.clip((0.64 - phase) / 0.05, 0, 1)
    return np.diff(flow, prepend=0) * 40


def _mouth(voice, source, open_wide):
    formants = [hertz * voice.throat * (1 + 0.06 * open_wide) for hertz in voice.vowel]
    formants.append(3500 * voice.throat)
    return sum(gain * resonate(source, hertz, width)
               for hertz, width, gain in zip(formants, WIDTHS, GAINS))


def _call(rng, voice, effort):
    """One ha: breath, then a note that arches up and falls."""
    note, breath = rng.uniform(0.06, 0.1), rng.uniform(0.045, 0.08)
    size = int((note + breath + 0.03) * SR)
    t = np.arange(size) / SR - breath
    arch = np.sin(np.pi * np.clip(t / (note + 0.03), 0, 1) ** 0.7)
    pitch = voice.pitch * (0.78 + effort * (0.2 + 0.24 * arch)) * np.exp(0.05 * rng.randn())
    voiced = np.clip(t / 0.014, 0, 1) * np.clip((note + 0.028 - t) / 0.03, 0, 1)
    aspirate = np.clip((t + breath) / 0.03, 0, 1) * np.clip((note + 0.03 - t) / 0.05, 0, 1)
    noise = rng.randn(size) * aspirate * voice.breathy * (0.75 - 0.45 * voiced)
    return _mouth(voice, _folds(rng, pitch) * voiced + noise, rng.randn()) * effort


def _in_breath(rng, voice):
    size = int(rng.uniform(0.2, 0.32) * SR)
    return _mouth(voice, rng.randn(size) * np.hanning(size) * 0.3 * voice.breathy, 1.0)


def _bout(rng, voice, track, t, until):
    """Bursts out, then runs down: each call weaker, lower and later."""
    effort, gap = rng.uniform(0.9, 1.25), 1 / voice.rate
    for _ in range(rng.randint(5, 13)):
        if t > until:
            break
        put(track, t, _call(rng, voice, effort * np.exp(0.15 * rng.randn())), voice.level)
        t += gap * (1 + 0.1 * rng.randn())
        gap *= rng.uniform(0.99, 1.08)
        effort *= rng.uniform(0.87, 1.0)
    put(track, t, _in_breath(rng, voice), voice.level)
    return t + rng.uniform(0.3, 1.2)


def _alone(rng, voice, begin, until):
    track, t = silence(LENGTH), begin
    while t < until:
        t = _bout(rng, voice, track, t, until)
    t = np.arange(track.size) / SR
    return track * (1 - 0.7 * np.clip((t - 4.8) / 1.5, 0, 1))


def laughter():
    rng = seeded(31)
    crowd = silence(LENGTH)
    for person in range(VOICES):
        front = person < IN_FRONT
        far = rng.uniform(1.2, 1.9) if front else rng.uniform(2.0, 5.5)
        angle = rng.uniform(-1.3, 1.3)
        begin = person * 0.45 if front else min(rng.exponential(0.35), 1.6)
        voice = _voice(rng, front)
        alone = _alone(rng, voice, begin, rng.uniform(4.7, 6.4))
        crowd += heard(alone, far * np.sin(angle), far * np.cos(angle))
    return pressed(crowd, 1.5)
