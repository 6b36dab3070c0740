"""The eight recordings of the game and the exact shape of their files."""

from collections import namedtuple

Recording = namedtuple("Recording", "rate bits data image fmt fill peak chunks")


# Sizes in bytes: the sample data, the whole file, the body of the format chunk
# and the zeros behind the RIFF form. The fanfare's sizes leave six bytes, less
# than the header of one more chunk, so they can only stand outside the form.
# `peak` is how high, in dB to full scale, the curve through the samples may go:
# the bell and the die that comes to rest are to stay soft among louder sounds.
# `chunks` are the INFO entries that follow the samples.
RECORDINGS = {
    "SHAKEDICE": Recording(22050, 8, 86898, 86944, 18, 0, -1, {}),
    "ROLLDICE": Recording(11025, 8, 7162, 7208, 18, 0, -1, {}),
    "ROLLDICEEND": Recording(11025, 8, 1099, 1144, 16, 0, -6, {}),
    "APPLAUSE": Recording(22050, 16, 165824, 166128, 16, 0, -1, dict(
        INAM="Applause",
        IPRD="Thistle and Lantern",
        ICMT="An audience clapping, dying away at the end. Ninety pairs of "
             "hands, each built from its own claps, in one room.")),
    "ELEVATOR": Recording(22050, 16, 38032, 38076, 16, 0, -7.5, {}),
    "PEOPLELAUGH": Recording(8000, 8, 52402, 52512, 16, 0, -1, dict(
        INAM="Crowd laughing", ICMT="Built voice by voice")),
    "RULEBRITANNIA": Recording(16000, 8, 69820, 69872, 18, 6, -1, {}),
    "DOORSHUT": Recording(22050, 8, 9344, 9388, 16, 0, -1, {}),
}
