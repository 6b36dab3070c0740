"""A wooden door falls shut: the leaf into its frame, then the latch into its hole."""

from room import heard
from strike import pressed, puff, put, scattered, seeded, silence, struck

# A door in a house, not a cellar: its panels speak where a small loudspeaker can.
LEAF = [(62, .034, .30), (86, .030, .33), (117, .026, .45), (158, .022, .62), (213, .018, .66),
        (305, .016, 1.1), (440, .013, 1.25), (660, .010, 1.0), (980, .006, .7)]
FRAME = [(190, .018, .5), (340, .015, 1.0), (520, .011, 1.1), (850, .007, .6), (1400, .004, .35)]
LATCH = [(1150, .004, .6), (1980, .005, .9), (2870, .0045, 1.0), (4100, .003, .7), (6200, .0018, .5)]
# The bolt rides up the plate; with the leaf home it springs into its hole and
# strikes the bottom of it.
CLICKS = [(0.006, .08), (0.0135, .12), (0.0205, .09), (0.137, .34), (0.188, .26)]
# Top corner, lock side and foot of the leaf do not meet the frame together.
BLOWS = [(0.036, 1.0), (0.0405, .55), (0.049, .25), (0.083, .08)]
RATTLES = [(0.037, .44), (0.046, .4), (0.058, .15), (0.071, .1), (0.094, .05), (0.118, .03)]


def _leaf(rng):
    sound = silence(0.45)
    for t, level in BLOWS:
        put(sound, t, struck(scattered(rng, LEAF), .0018, .3), level)
    for t, level in RATTLES:
        put(sound, t, struck(scattered(rng, FRAME), .0009, .1), level)
    # Air driven out of the gap.
    put(sound, 0.022, puff(rng, 230, 0.7, .010, .022, .15), 0.7)
    return sound


def _latch(rng):
    sound = silence(0.45)
    for t, level in CLICKS:
        put(sound, t, struck(scattered(rng, LATCH), .00018, .05), level)
        put(sound, t, puff(rng, 3400, 0.9, .0002, .0009, .01), level * 0.5)
    return sound


def shut():
    rng = seeded(10)
    leaf, latch = heard(_leaf(rng), 0.6, 2.2), heard(_latch(rng), 1.0, 2.1, -0.2)
    return pressed(leaf, 2.0) + 2.3 * latch
