"""A wooden door falls shut: the latch first, then the leaf into its frame."""

from room import heard
from strike import puff, put, scattered, seeded, silence, struck

LEAF = [(58, .036, .8), (83, .035, .9), (117, .032, .9), (158, .026, .8), (213, .022, .6),
        (305, .017, .5), (440, .012, .4), (660, .008, .28), (980, .005, .18)]
FRAME = [(190, .018, .5), (340, .014, .7), (520, .010, .8), (850, .007, .6), (1400, .004, .35)]
LATCH = [(1150, .004, .5), (1980, .005, .8), (2870, .0045, 1.0), (4100, .003, .7), (6200, .0018, .5)]
# The bolt rides up the plate, and springs into its hole after the leaf is home.
CLICKS = [(0.006, .10), (0.0135, .17), (0.0205, .12), (0.068, .30), (0.0815, .16), (0.101, .06)]
# Top corner, lock side and foot of the leaf do not meet the frame together.
BLOWS = [(0.036, 1.0), (0.0405, .55), (0.049, .35), (0.083, .12)]
RATTLES = [(0.039, .22), (0.046, .3), (0.058, .15), (0.071, .18), (0.094, .07), (0.118, .04)]


def _leaf(rng):
    sound = silence(0.45)
    for t, level in BLOWS:
        put(sound, t, struck(scattered(rng, LEAF), .0035, .3), level)
    for t, level in RATTLES:
        put(sound, t, struck(scattered(rng, FRAME), .0009, .1), level)
    # Air driven out of the gap.
    put(sound, 0.022, puff(rng, 170, 0.7, .010, .022, .15), 0.9)
    return sound


def _latch(rng):
    sound = silence(0.45)
    for t, level in CLICKS:
        put(sound, t, struck(scattered(rng, LATCH), .00018, .05), level)
        put(sound, t, puff(rng, 3400, 0.9, .0002, .0009, .01), level * 0.5)
    return sound


def shut():
    rng = seeded(9)
    return heard(_leaf(rng), 0.7, 2.6, 0.0) + heard(_latch(rng), 1.1, 2.5, -0.2) * 2.5
