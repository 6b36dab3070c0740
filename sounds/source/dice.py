"""Three bone dice: in the leather cup, over the table, coming to rest."""

from collections import namedtuple

import cup
from room import heard
from strike import pressed, put, ring, scattered, seeded, silence, struck

# Modes as (Hz, seconds to fall by 1/e, gain); `width` is the time of contact
# in seconds, `click` the part of the bone itself.
Surface = namedtuple("Surface", "modes width click")
LEATHER = Surface([(330, .009, .25), (560, .008, .6), (870, .007, .9), (1290, .005, .9),
                   (1880, .0035, .6), (2700, .002, .4), (3900, .0012, .3)], .0002, .8)
BONE = Surface([(870, .005, .25), (1290, .004, .3), (2950, .0016, .7), (4300, .0012, 1),
                (6100, .0008, .7)], .00012, 1.0)
CLOTH = Surface([(115, .007, .12), (190, .007, .25), (290, .006, .35), (430, .0055, .5), (640, .005, .75),
                 (930, .005, .9), (1350, .0045, .9), (2050, .003, .7), (3100, .0018, .7)], .00016, .9)
TINKLE = [(3350, .0011, 1), (4700, .0008, .8), (7100, .0005, .5)]
TABLE = (0.1, 0.5, -0.3)


def knock(rng, surface, speed):
    """One touch of a die. Faster is brighter, and no two places are alike."""
    width = surface.width * rng.uniform(0.6, 1.7) * (speed + 0.05) ** -0.25
    sound = struck(scattered(rng, surface.modes, 0.07), width, 0.09)
    bone = ring(scattered(rng, TINKLE), 0.008)
    put(sound, width / 2, bone, surface.click * rng.uniform(0.3, 1.0))
    # Hard knocks must not drown the soft ones, which make the rattle.
    return sound * speed ** 0.6


def _tumble(rng, surface, speed):
    """A cube seldom lands flat: a corner touches, then an edge or a face."""
    sound = silence(0.11)
    put(sound, 0, knock(rng, surface, speed))
    if rng.rand() < 0.6:
        put(sound, rng.uniform(0.002, 0.009), knock(rng, surface, speed * rng.uniform(0.25, 0.8)))
    return sound


def shake():
    rng = seeded(79)
    track = silence(4.0)
    for t, met, speed in cup.touches(rng):
        # Below this a die only leans on its neighbour.
        if speed > 0.045:
            put(track, t + 0.001 * rng.rand(), _tumble(rng, BONE if met else LEATHER, speed))
    return pressed(heard(track, -0.2, 0.5, -0.2), 2.4)


def _bounces(rng, t, speed):
    """One die: falls, springs lower each time, then trundles edge over edge."""
    while speed > 0.22:
        yield t, speed
        t += 0.2 * speed * rng.uniform(0.5, 0.9)
        speed *= rng.uniform(0.48, 0.7)
    step = rng.uniform(0.026, 0.034)
    while speed > 0.02:
        yield t, speed
        t += step * rng.uniform(0.8, 1.2)
        step *= 1.13
        speed *= rng.uniform(0.55, 0.74)


def roll():
    rng = seeded(24)
    track = silence(0.7)
    for start, speed in ((0.003, 0.8), (0.053, 0.7), (0.103, 0.6)):
        for t, touch in _bounces(rng, start, speed):
            put(track, t, _tumble(rng, CLOTH, touch))
    for t, speed in ((0.121, 0.5), (0.208, 0.3)):
        put(track, t, knock(rng, BONE, speed))
    return pressed(heard(track, *TABLE), 1.2)


def rest():
    """The last die tips from its edge on to its face and settles."""
    rng = seeded(6)
    track = silence(0.12)
    for t, speed in ((0.0012, 0.5), (0.0078, 0.32), (0.0118, 0.1)):
        put(track, t, knock(rng, CLOTH, speed))
    return heard(track, *TABLE)
