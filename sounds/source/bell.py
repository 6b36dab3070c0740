"""A small brass counter bell, tapped once for every coin that comes."""

from room import heard
from strike import puff, put, ring, seeded, silence, struck

PITCH = 1975.5
# (ratio to the pitch, seconds to fall by 1/e, gain): a bell's partials are not
# multiples of one another, and the high ones die first. All are gone before the
# recording ends.
PARTIALS = [(0.507, .145, .10), (1.0, .14, 1.0), (1.187, .13, .22), (1.562, .13, .35),
            (2.018, .13, .67), (2.43, .105, .19), (2.741, .11, .54), (3.36, .08, .25),
            (3.79, .065, .35), (4.57, .045, .24), (5.12, .03, .16)]


def _doublets(rng):
    """No bell is quite round: each partial is a pair that beats slowly."""
    for ratio, decay, gain in PARTIALS:
        split = rng.uniform(0.4, 1.1) * ratio ** 0.5
        share = rng.uniform(0.12, 0.25)
        yield PITCH * ratio - split / 2, decay * rng.uniform(0.92, 1.08), gain * (1 - share)
        yield PITCH * ratio + split / 2, decay * rng.uniform(0.92, 1.08), gain * share


def strike_bell():
    rng = seeded(5)
    track = silence(0.9)
    modes = list(_doublets(rng))
    put(track, 0.0012, struck(modes, 0.00022, 0.88))
    # The clapper's own rebound, and the spring that throws it.
    put(track, 0.0047, ring([(h, d * 0.3, g) for h, d, g in modes[10:]], 0.2), 0.12)
    put(track, 0.0012, puff(rng, 4200, 1.2, .0002, .0016, .02), 0.5)
    put(track, 0.0012, struck([(410, .012, .5), (690, .008, .4), (1240, .005, .3)], .0008, .06), 0.35)
    return heard(track, 0.3, 0.8, -0.3)
