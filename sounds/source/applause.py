"""Ninety people clapping, none of them together."""

from collections import namedtuple

import numpy as np

from room import heard
from strike import pressed, puff, put, seeded, silence

Clapper = namedtuple("Clapper", "begin end rate hertz q decay level")
LENGTH = 3.8
PEOPLE = 90


def _clapper(rng):
    """Cupped palms sound low and round, flat fingers high and dry."""
    begin = min(rng.exponential(0.26), 0.9)
    end = min(2.62 + 0.95 * rng.beta(1.5, 2.2), 3.45)
    return Clapper(begin, end, rng.uniform(2.9, 5.8), np.clip(1150 * np.exp(0.3 * rng.randn()), 520, 2600),
                   rng.uniform(0.8, 2.0), rng.uniform(0.0012, 0.0034), np.exp(0.3 * rng.randn()))


def _times(rng, who):
    """Tired hands grow slower as the applause dies."""
    t = who.begin
    while t < who.end:
        yield t
        slower = 1 + 0.35 * max(0, t - 2.4)
        t += slower / who.rate * (1 + 0.1 * rng.randn())


def _clap(rng, who):
    hertz = who.hertz * (1 + 0.07 * rng.randn())
    decay = who.decay * rng.uniform(0.75, 1.3)
    palm = puff(rng, hertz, who.q, .00025, decay, .03)
    palm += 0.27 * puff(rng, hertz * rng.uniform(2.4, 3.4), 1.1, .0001, decay * 0.5, .03)
    palm += 0.08 * puff(rng, 6200, 0.7, .0001, .0006, .03)
    fingers = silence(0.04)
    put(fingers, 0, palm)
    if rng.rand() < 0.4:
        put(fingers, rng.uniform(.0015, .006), palm, rng.uniform(0.2, 0.5))
    return fingers * np.exp(0.18 * rng.randn())


def _alone(rng, who):
    track = silence(LENGTH)
    for t in _times(rng, who):
        fading = 1 - 0.65 * np.clip((t - 2.5) / 0.9, 0, 1)
        put(track, t, _clap(rng, who), who.level * fading)
    return track


def applause():
    rng = seeded(90)
    hall = silence(LENGTH)
    for person in range(PEOPLE):
        # Half of them stand about the table, the others fill the room.
        far = rng.uniform(1.7, 3.5) if person % 2 else rng.uniform(3.0, 7.0)
        angle = rng.uniform(-1.5, 1.5)
        hall += heard(_alone(rng, _clapper(rng)), far * np.sin(angle), far * np.cos(angle))
    return pressed(hall, 1.5)
