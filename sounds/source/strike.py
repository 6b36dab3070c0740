"""What a struck body gives off: contacts, ringing modes, short noise."""

import numpy as np
from scipy.signal import fftconvolve, lfilter

SR = 44100


def seeded(number):
    """RandomState, since its streams are frozen: newer generators may draw
    other numbers in another numpy and the recordings would change."""
    return np.random.RandomState(number)


def contact(seconds):
    """The force of one contact; a shorter one pushes as hard but brighter."""
    pulse = np.hanning(max(5, int(seconds * SR) + 2))
    return pulse / pulse.sum()


def ring(modes, seconds):
    """Modes are (Hz, seconds to fall by 1/e, gain)."""
    t = np.arange(int(seconds * SR)) / SR
    out = np.zeros(t.size)
    for hertz, decay, gain in modes:
        out += gain * np.exp(-t / decay) * np.sin(2 * np.pi * hertz * t)
    return out


def scattered(rng, modes, pitch=0.03, gain=0.6):
    """The same body hit at another place: every mode answers differently."""
    return [(hertz * (1 + pitch * rng.randn()), decay * rng.uniform(0.75, 1.25),
             level * (1 - gain * rng.rand())) for hertz, decay, level in modes]


def struck(modes, width, seconds):
    return fftconvolve(ring(modes, seconds), contact(width))


def puff(rng, hertz, q, attack, decay, seconds):
    """A short breath of noise around one resonance."""
    t = np.arange(int(seconds * SR)) / SR
    shape = (1 - np.exp(-t / attack)) * np.exp(-t / decay)
    return resonate(rng.randn(t.size) * shape, hertz, hertz / q)


def resonate(signal, hertz, bandwidth):
    """Two poles, peak gain one, no response at 0 Hz."""
    radius = np.exp(-np.pi * bandwidth / SR)
    angle = 2 * np.pi * hertz / SR
    gain = (1 - radius * radius) / 2
    return lfilter([gain, 0, -gain],
                   [1, -2 * radius * np.cos(angle), radius * radius], signal)


def put(track, seconds, sound, gain=1.0):
    start = int(seconds * SR)
    part = sound[:max(0, track.size - start)]
    track[start:start + part.size] += gain * part


def pressed(sound, drive):
    """Leans the loudest moments over softly, as ears and a full room do."""
    return np.tanh(sound / np.abs(sound).max() * drive)


def silence(seconds):
    return np.zeros(int(seconds * SR))
