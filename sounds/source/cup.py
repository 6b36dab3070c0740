"""Three dice flying about in a shaken cup: when they touch what, and how fast."""

import numpy as np

GRAVITY = np.array([0, 0, 9.81])
STEP = 0.0002
DIE = 0.008
RADIUS, HEIGHT = 0.04, 0.085
FRICTION = 0.3
SWINGS, FIRST_SWING, SWING = 6, 0.70, 0.32
# Lifted, brought to rest, tipped, and long after that nudged twice more:
# (seconds, length, acceleration).
BUMPS = [(0.555, 0.06, 28), (2.62, 0.09, 24), (2.76, 0.07, 19), (3.44, 0.07, 11.5), (3.55, 0.06, 13)]


def _gestures(rng):
    """What the hand does: (begin, length, acceleration, strength of shiver)."""
    for swing in range(SWINGS):
        push = rng.uniform([21, -3, 3], [29, 3, 8]) * [(-1) ** swing, 1, 1]
        yield (FIRST_SWING + SWING * swing + 0.012 * rng.randn(), SWING * rng.uniform(0.92, 1.05),
               push, rng.uniform(3, 11, 3))
    for begin, length, force in BUMPS:
        yield begin, length, force * np.array([0.6, 0.3, 1.0]), np.zeros(3)


def _pushes(rng):
    """The cup's acceleration at every step; nobody shakes without shivering."""
    t = np.arange(0, 4, STEP)
    push = np.zeros((t.size, 3))
    for begin, length, force, shiver in _gestures(rng):
        inside = (t > begin) & (t < begin + length)
        turn = 2 * np.pi * (t[inside, None] - begin) / length
        push[inside] += force * np.sin(turn) + shiver * np.sin(turn * rng.uniform(3.2, 4.6) + begin * 50)
    return zip(t, push.round(9))


def _dot(one, other):
    """Summed in a fixed order. Flying dice magnify the last digit of a number
    to another throw, and library products round as the processor suits them."""
    return (one * other).sum()


def _length(vector):
    return np.sqrt(_dot(vector, vector))


def _bounce(rng, velocity, normal, give):
    """Turns the velocity back from a surface, unless it leaves already: faces
    rub, corners throw a cube off the straight way. Returns the speed of impact."""
    into = -_dot(velocity, normal)
    if into <= 0:
        return 0.0
    along = velocity + into * normal
    along *= 1 - min(1.0, FRICTION * into / (_length(along) + 1e-9))
    scatter = 0.4 * into * rng.randn(3)
    velocity[:] = along + give * into * normal + scatter - _dot(scatter, normal) * normal
    return into


def _against_walls(rng, place, velocity):
    """For each wall: how far the die is beyond it, the way back, the spring."""
    out = _length(place[:2]) + 1e-9
    for beyond, normal, give in ((out - RADIUS + DIE, place * [-1, -1, 0] / out, 0.6),
                                 (DIE - place[2], np.array([0, 0, 1]), 0.38),
                                 (place[2] - HEIGHT, np.array([0, 0, -1]), 0.38)):
        if beyond > 0:
            place += beyond * normal
            yield _bounce(rng, velocity, normal, give)


def _against(rng, places, velocities, one, other):
    apart = places[one] - places[other]
    distance = _length(apart)
    if distance < 2 * DIE:
        way = apart / distance * (DIE - distance / 2)
        places[one] += way
        places[other] -= way
        before = velocities[one] - velocities[other]
        after = before.copy()
        yield _bounce(rng, after, apart / distance, 0.6)
        velocities[one] += (after - before) / 2
        velocities[other] -= (after - before) / 2


def touches(rng):
    """(time, whether two dice met, speed) for everything that can be heard."""
    places = np.array([[-.012, 0, DIE], [.012, .006, DIE], [.001, -.016, DIE]])
    velocities = np.zeros((3, 3))
    for t, push in _pushes(rng):
        velocities -= (push + GRAVITY) * STEP
        places += velocities * STEP
        for die in range(3):
            for speed in _against_walls(rng, places[die], velocities[die]):
                yield t, False, speed
            for speed in _against(rng, places, velocities, die, (die + 1) % 3):
                yield t, True, speed
