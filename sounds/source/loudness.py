"""How loud each recording is for as long as it is heard, in LUFS: ITU-R BS.1770
and EBU R 128 for a single channel."""

from math import gcd, log10

import numpy as np
from scipy.signal import lfilter, resample_poly

from form_check import Claim

# The standard prints its filters for this rate: a head's shelf, then a high-pass.
RATE = 48000
SHELF = ((1.53512485958697, -2.69169618940638, 1.19839281085285), (1, -1.69065929318241, 0.73248077421585))
RUMBLE = ((1, -2, 1), (1, -1.99004745483398, 0.99007225036621))
BLOCK, STEP = 19200, 4800
SILENCE, GATE = -70, -10

# Seconds until the next recording cuts one off; the others are heard whole. A
# roll lasts 0.25 to 0.45 s, as the dice fall.
HEARD = {"SHAKEDICE": 2.92, "ROLLDICE": 0.4, "APPLAUSE": 2.875}
# Money comes in a run of pieces, each with its bell, and only the last rings out.
BELLS, BELL = 15, 0.25

# The fanfare opens the evening and may be loud. Dice, people and the door are
# on one level; the bell, which rings up to fifteen times, stays under the dice.
WANTED = {"SHAKEDICE": -16, "ROLLDICE": -16, "ROLLDICEEND": -26, "APPLAUSE": -15, "ELEVATOR": -17.5,
          "PEOPLELAUGH": -15, "RULEBRITANNIA": -11.5, "DOORSHUT": -15}
TOLERANCE = 1.5


def _resampled(x, rate, wanted):
    step = gcd(rate, wanted)
    return resample_poly(x, wanted // step, rate // step)


def _lufs(power):
    return -0.691 + 10 * log10(max(power, 1e-12))


def _power(lufs):
    return 10 ** ((lufs + 0.691) / 10)


def _gated(power):
    """The mean without blocks that are silent or far below the others."""
    total = np.concatenate(([0], np.cumsum(power)))
    starts = np.arange(0, power.size - BLOCK + 1, STEP)
    blocks = (total[starts + BLOCK] - total[starts]) / BLOCK
    blocks = blocks[blocks > _power(SILENCE)]
    if not blocks.size:
        return 0.0
    return blocks[blocks > _power(_lufs(blocks.mean()) + GATE)].mean()


def integrated(x, rate):
    """A gate needs blocks to choose from: below two of them there is none, and
    the mean is taken over the whole."""
    power = lfilter(*RUMBLE, lfilter(*SHELF, _resampled(x, rate, RATE))) ** 2
    return _lufs(_gated(power) if power.size >= 2 * BLOCK else power.mean())


def heard(name, x, rate):
    """What the game lets through of a recording."""
    if name == "ELEVATOR":
        return np.concatenate([np.tile(x[:int(BELL * rate)], BELLS - 1), x])
    return x[:int(HEARD[name] * rate)] if name in HEARD else x


def as_heard(name, x, rate):
    return integrated(heard(name, x, rate), rate)


def true_peak(x, rate):
    """The highest point of the curve through the samples, in dB: a player that
    converts the rate goes there."""
    return 20 * log10(np.abs(_resampled(x, rate, 4 * rate)).max() + 1e-6)


def claims(name, x, rate):
    wanted = WANTED[name]
    yield Claim("loudness as heard, LUFS", as_heard(name, x, rate), wanted - TOLERANCE, wanted + TOLERANCE)
    yield Claim("true peak, dB", true_peak(x, rate), -20, -0.5)


def balance(lufs):
    """How the recordings stand to one another, from the loudness of each."""
    level = [lufs[name] for name in ("SHAKEDICE", "ROLLDICE", "APPLAUSE", "PEOPLELAUGH", "DOORSHUT")]
    yield Claim("dice, people and door apart, LU", max(level) - min(level), 0, TOLERANCE)
    yield Claim("a run of bells under the dice, LU", lufs["ROLLDICE"] - lufs["ELEVATOR"], 0.5, 3)
    yield Claim("fanfare over everything else, LU", lufs["RULEBRITANNIA"] - max(level), 1.5, 5)
