"""Figures that tell one kind of sound from another."""

import numpy as np
from scipy.ndimage import median_filter
from scipy.signal import butter, find_peaks, sosfiltfilt, welch
from scipy.stats import kurtosis

FLOOR = 1e-5


def db(level):
    return 20 * np.log10(np.maximum(level, FLOOR))


def levels(x, rate, span=0.01):
    """RMS of overlapping windows, two for each `span` seconds."""
    size = max(2, int(span * rate))
    total = np.concatenate(([0], np.cumsum(x ** 2)))
    starts = np.arange(0, x.size - size + 1, size // 2)
    return np.sqrt(np.maximum(total[starts + size] - total[starts], 0) / size)


def moments(x, rate, span=0.01):
    """The middle of each window of `levels`, in seconds."""
    size = max(2, int(span * rate))
    return np.arange(0, x.size - size + 1, size // 2) / rate + span / 2


def part(x, rate, begin, end):
    return x[int(begin * rate):int(end * rate)]


def band(x, rate, low=None, high=None):
    kind = "lowpass" if high else "highpass"
    return sosfiltfilt(butter(4, high or low, kind, fs=rate, output="sos"), x)


def loudest(x, rate):
    return db(levels(x, rate).max())


def rms(x):
    return db(np.sqrt(np.mean(x ** 2)))


def start(x, rate, below=30):
    """When the sound first comes within `below` dB of its peak."""
    return np.argmax(np.abs(x) > np.abs(x).max() * 10 ** (-below / 20)) / rate


def jump(x, rate, at, span=0.008):
    """How far the level leaps within a few milliseconds of a moment."""
    padded = np.pad(x, round(span * rate))
    return rms(part(padded, rate, at + span, at + 2 * span)) - rms(part(padded, rate, at, at + span))


def fallen(x, rate, by=20):
    """How long some window still reaches within `by` dB of the loudest one."""
    level = db(levels(x, rate))
    return moments(x, rate)[np.flatnonzero(level > level.max() - by)[-1]]


def onsets(x, rate, rise=3.0, apart=0.012, above=-40):
    """How often the level climbs by `rise` dB within two windows of 3 ms."""
    level = db(levels(x, rate, 0.006))
    climb = np.where(level[2:] > level.max() + above, level[2:] - level[:-2], 0)
    return find_peaks(np.pad(climb, 1), height=rise, distance=round(apart / 0.003))[0].size


def spectrum(x, rate):
    return welch(x, rate, nperseg=min(1024, x.size), detrend=False)


def centroid(x, rate):
    hertz, power = spectrum(x, rate)
    return np.sum(hertz * power) / (np.sum(power) + FLOOR ** 2)


def flatness(x, rate):
    power = spectrum(x, rate)[1][1:] + FLOOR ** 3
    return np.exp(np.mean(np.log(power))) / np.mean(power)


def share_below(x, rate, hertz):
    power = np.abs(np.fft.rfft(x)) ** 2
    return power[:int(hertz * x.size / rate)].sum() / (power.sum() + FLOOR ** 2)


def tilt(x, rate, hertz):
    """What lies above a frequency against what lies below, in dB."""
    below = share_below(x, rate, hertz)
    return db(np.sqrt((1 - below) / (below + FLOOR ** 2)))


def spikiness(x, rate, low):
    return kurtosis(band(x, rate, low))


def variation(x, rate, span=0.01):
    level = levels(x, rate, span)
    return level.std() / (level.mean() + FLOOR)


def periodicity(x, rate, shortest=0.1, longest=1.0):
    """How well the envelope repeats: 1 for a loop, 0 for chance."""
    level = levels(x, rate)
    level = level - level.mean()
    tie = np.correlate(level, level, "full")[level.size - 1:]
    tie /= np.arange(level.size, 0, -1) * (level.var() + FLOOR ** 2)
    frames = 2 / 0.01
    return tie[int(shortest * frames):int(longest * frames)].max()


def beat(x, rate):
    """The strongest rhythm of the envelope between 1 and 20 Hz."""
    level = levels(x, rate, 0.02)
    hertz, power = welch(level, 100, nperseg=256, nfft=1024, detrend="linear")
    inside = (hertz > 1) & (hertz < 20)
    return hertz[inside][np.argmax(power[inside])]


def standing_out(x, rate, by=3.0):
    """Peaks of the envelope that rise over the crowd about them."""
    level = db(levels(x, rate, 0.04))
    over = level - median_filter(level, 75)
    return find_peaks(over, height=by, distance=5)[0].size


def squeals(x, rate, low=500, high=800, clear=12.0, shortest=0.22):
    """Single tones too long for a laugh that glide, clear of everything else."""
    size, hop = int(0.04 * rate), int(0.01 * rate)
    hertz = np.fft.rfftfreq(8 * size, 1 / rate)
    near, inside = (hertz > 300) & (hertz < 1200), (hertz > low) & (hertz < high)
    found, length, last = 0, 0, 0.0
    for begin in range(0, x.size - size, hop):
        line = db(np.abs(np.fft.rfft(x[begin:begin + size] * np.hanning(size), 8 * size)))
        pitch = hertz[inside][np.argmax(line[inside])]
        alone = line[inside].max() > max(np.median(line[near]) + clear, line[near].max() - 3)
        length = (length + 1 if abs(pitch - last) < 45 else 1) if alone else 0
        found += length == round(shortest * rate / hop)
        last = pitch
    return found


def bursts(x, rate, dip=8.0):
    """How many swellings a fall of `dip` dB parts from one another."""
    level = db(levels(x, rate, 0.04))
    return find_peaks(level, height=level.max() - 20, prominence=dip)[0].size


def partials(x, rate, down=45):
    """Frequencies of the lines of a ringing body, the strongest first."""
    line = db(np.abs(np.fft.rfft(x * np.hanning(2 * x.size)[x.size:])))
    gap = int(60 * x.size / rate)
    peaks, found = find_peaks(line, height=line.max() - down, distance=gap, prominence=15)
    return peaks[np.argsort(-found["peak_heights"])] * rate / x.size


def inharmonic(lines, near=0.013):
    """Lines far from any multiple of the strongest, its half and its third."""
    ratio = lines / lines[0]
    apart = [np.abs(ratio * part - np.rint(ratio * part)) / (ratio * part) for part in (1, 2, 3)]
    return int(np.sum(np.min(apart, axis=0) > near))


def highest_line(x, rate, clear=15.0, down=60.0):
    """The topmost line that stands clear of its neighbourhood, as chance does
    not, and that is loud enough to matter."""
    line = db(np.abs(np.fft.rfft(x * np.hanning(x.size))))
    over = line - median_filter(line, int(400 * x.size / rate))
    peaks = find_peaks(over, height=clear)[0]
    return peaks[line[peaks] > line.max() - down].max(initial=0) * rate / x.size


def tone(x, rate, hertz):
    """Power of a note: its first three harmonics."""
    power = np.abs(np.fft.rfft(x * np.hanning(x.size), 16384)) ** 2
    return sum(power[round(hertz * part * 16384 / rate)] for part in (1, 2, 3))


def slope(x, rate):
    """How fast the level rises or falls, in dB a second."""
    level = db(levels(x, rate, 0.1))
    return np.polyfit(moments(x, rate, 0.1), level, 1)[0]
