"""What each recording must show to be taken for what it is."""

import numpy as np

import loudness
import measure as m
from catalogue import RECORDINGS
from fanfare import BEAT, TUNE
from form_check import Claim
from wave_file import parse, samples

ANY = float("inf")
# When the three dice come into sight, a moment for the sound to rise taken off.
LANDINGS = (0.002, 0.052, 0.102)
# The tune as it is sung, in half tones over the B flat on which it stands.
SUNG = [-5, 0, 0, 0, 2, 4, 5, 7, 0, 2, 2, 4, 5, 4]
B_FLAT = 466.16


def shakedice(x, rate):
    loudest = m.loudest(x, rate)
    yield Claim("level up to 0.55 s, dB", m.loudest(m.part(x, rate, 0, 0.55), rate), -ANY, -50)
    yield Claim("first rattle, s", m.start(x, rate), 0.6, 0.7)
    shaken = m.part(x, rate, 0.7, 2.62)
    yield Claim("bursts during the swings", m.bursts(shaken, rate), 3, 12)
    swings = [m.loudest(swing, rate) - loudest for swing in np.array_split(shaken, 6)]
    yield Claim("quietest swing's rattle, dB to the loudest", min(swings), -10, 0)
    pause = m.loudest(m.part(x, rate, 3.1, 3.4), rate)
    yield Claim("pause from 3.1 to 3.4 s, dB to the loudest", pause - loudest, -ANY, -32)
    last = m.part(x, rate, 3.4, 3.9)
    yield Claim("last rattle, dB to the loudest", m.loudest(last, rate) - loudest, -25, -12)
    yield Claim("knocks in the last rattle", m.onsets(last, rate, above=-25), 2, 30)
    yield Claim("spectral centroid, Hz", m.centroid(x, rate), 800, 3000)
    yield Claim("kurtosis above 2 kHz", m.spikiness(x, rate, 2000), 10, ANY)


def rolldice(x, rate):
    yield Claim("onset, s", m.start(x, rate), 0, 0.010)
    heard = m.part(x, rate, 0, 0.5)
    yield Claim("onsets a second", m.onsets(heard, rate) / 0.5, 10, 60)
    landings = [m.jump(x, rate, at) for at in LANDINGS]
    yield Claim("smallest jump where a die lands, dB", min(landings), 10, ANY)
    between = max(m.loudest(m.part(x, rate, at + 0.02, at + 0.045), rate) for at in LANDINGS[:2])
    yield Claim("between the landings, dB to the loudest", between - m.loudest(x, rate), -ANY, -6)
    yield Claim("20 dB down after, s", m.fallen(x, rate), 0.25, 0.5)
    yield Claim("spectral centroid, Hz", m.centroid(x, rate), 400, 2500)


def rolldiceend(x, rate):
    yield Claim("onset, s", m.start(x, rate), 0, 0.005)
    yield Claim("20 dB down after, s", m.fallen(x, rate), 0.01, 0.060)
    yield Claim("spectral centroid, Hz", m.centroid(x, rate), 600, 2500)


def applause(x, rate):
    full = m.part(x, rate, 0.6, 2.6)
    yield Claim("spectral centroid, Hz", m.centroid(full, rate), 1300, 2700)
    yield Claim("spectral flatness", m.flatness(full, rate), 0.15, 0.5)
    yield Claim("envelope variation", m.variation(full, rate), 0.12, 0.4)
    yield Claim("envelope periodicity", m.periodicity(full, rate), -1, 0.3)
    yield Claim("last 0.1 s, dB", m.loudest(x[-rate // 10:], rate), -ANY, -40)


def elevator(x, rate):
    lines = m.partials(x, rate)
    yield Claim("onset, s", m.start(x, rate), 0, 0.005)
    yield Claim("strongest partial, Hz", lines[0], 1500, 3000)
    yield Claim("inharmonic partials", m.inharmonic(lines), 5, 40)
    yield Claim("20 dB down after, s", m.fallen(x, rate), 0.25, 0.45)
    left = m.loudest(m.part(x, rate, 0.68, 0.73), rate) - m.loudest(x, rate)
    yield Claim("left before the file's end, dB to the loudest", left, -ANY, -38)
    yield Claim("partials above the prime, dB to it", m.tilt(m.part(x, rate, 0, 0.1), rate, 1.1 * lines[0]), -7, -2)


def peoplelaugh(x, rate):
    crowd = m.part(x, rate, 0.5, 5)
    yield Claim("calls a second", m.beat(crowd, rate), 4.4, 4.9)
    yield Claim("envelope variation", m.variation(crowd, rate, 0.02), 0.25, 0.5)
    yield Claim("envelope periodicity", m.periodicity(crowd, rate), -1, 0.3)
    yield Claim("spectral centroid, Hz", m.centroid(crowd, rate), 800, 1600)
    yield Claim("laughs standing out", m.standing_out(crowd, rate), 6, 30)
    yield Claim("squeals from 500 to 800 Hz", m.squeals(x, rate), 2, 5)
    swell = m.rms(m.part(x, rate, 0.1, 0.3)) - m.rms(m.part(x, rate, 1, 3))
    yield Claim("first laughs, dB to the crowd", swell, -16, -6)
    yield Claim("slope from 1 to 5 s, dB a second", m.slope(m.part(x, rate, 1, 5), rate), -2, 2)
    yield Claim("slope from 5 to 6.2 s, dB a second", m.slope(m.part(x, rate, 5, 6.2), rate), -60, -8)


def _notes_of_the_tune(x, rate):
    """How many notes outweigh the half tones beside them at their time."""
    found = 0
    for (beat, beats, _), sung in zip(TUNE, SUNG):
        note = m.part(x, rate, beat * BEAT + 0.01, (beat + beats) * BEAT)
        below, there, above = (m.tone(note, rate, B_FLAT * 2 ** ((sung + off) / 12)) for off in (-1, 0, 1))
        found += there > max(below, above)
    return found


def rulebritannia(x, rate):
    yield Claim("note onsets", m.onsets(m.part(x, rate, 0, 3.8), rate, 2, 0.08, -20), 10, 60)
    yield Claim("notes of the tune at their pitch", _notes_of_the_tune(x, rate), 13, 14)
    yield Claim("spectral centroid, Hz", m.centroid(x, rate), 800, 1600)
    yield Claim("harmonics visible up to, Hz", m.highest_line(m.part(x, rate, 3.1, 3.6), rate), 6000, 8000)
    yield Claim("last chord held until, s", m.fallen(x, rate, 6), 3.95, 4.15)


def doorshut(x, rate):
    click = m.start(m.band(x, rate, low=1500), rate, 14)
    low = m.band(x, rate, high=250)
    thump = m.moments(low, rate)[np.argmax(m.levels(low, rate))]
    yield Claim("onset, s", m.start(x, rate), 0, 0.040)
    yield Claim("latch before the thump by, s", thump - click, 0.01, 0.1)
    yield Claim("energy below 250 Hz", m.share_below(x, rate, 250), 0.25, 0.7)
    lost = loudness.integrated(x, rate) - loudness.integrated(m.band(x, rate, low=300), rate)
    yield Claim("lost on a small loudspeaker, LU", lost, 0, 3)
    after = m.part(m.band(x, rate, low=1500), rate, 0.12, 0.4)
    yield Claim("clicks after the thump", m.onsets(after, rate, 6, 0.02, -20), 2, 2)
    yield Claim("20 dB down after, s", m.fallen(x, rate), 0.05, 0.32)


CHARACTERS = {shown.__name__.upper(): shown for shown in (
    shakedice, rolldice, rolldiceend, applause, elevator, peoplelaugh, rulebritannia, doorshut)}


def played(name, image):
    """The samples of a file and how many there are in a second."""
    recording = RECORDINGS[name]
    return np.array(samples(parse(image).data, recording.bits)), recording.rate


def claims(name, x, rate):
    return CHARACTERS[name](x, rate)
