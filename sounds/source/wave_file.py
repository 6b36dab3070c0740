"""RIFF WAVE images, byte by byte. Needs the standard library alone."""

import struct
from collections import namedtuple

Parsed = namedtuple("Parsed", "riff_end chunks_end chunks pad fmt data")


def _chunk(tag, body):
    return struct.pack("<4sI", tag, len(body)) + body + b"\0" * (len(body) % 2)


def _format_chunk(recording):
    width = recording.bits // 8
    body = struct.pack("<HHIIHH", 1, 1, recording.rate, recording.rate * width,
                       width, recording.bits)
    # The longer form says how many bytes of extension follow: none.
    return _chunk(b"fmt ", body + b"\0" * (recording.fmt - len(body)))


def _info_chunk(entries, room):
    """The last text is drawn out with NULs so that the chunk fills `room`."""
    texts = [(tag.encode(), text.encode() + b"\0") for tag, text in entries.items()]
    body = b"INFO" + b"".join(_chunk(tag, text) for tag, text in texts[:-1])
    tag, text = texts[-1]
    return _chunk(b"LIST", body + _chunk(tag, text.ljust(room - len(body) - 16, b"\0")))


def build(recording, data):
    """The file image around the sample bytes."""
    chunks = _format_chunk(recording) + _chunk(b"data", data)
    if recording.chunks:
        chunks += _info_chunk(recording.chunks, recording.image - 12 - len(chunks))
    return _chunk(b"RIFF", b"WAVE" + chunks) + b"\0" * recording.fill


def parse(image):
    """Walks the chunks, trusting nothing but the sizes written in the file."""
    tag, size, kind = struct.unpack_from("<4sI4s", image)
    if (tag, kind) != (b"RIFF", b"WAVE"):
        raise ValueError("not a RIFF WAVE image")
    chunks, pad, at = {}, b"", 12
    while at + 8 <= min(8 + size, len(image)):
        tag, length = struct.unpack_from("<4sI", image, at)
        chunks[tag] = image[at + 8:at + 8 + length]
        at += 8 + length
        if length % 2:
            pad = image[at:at + 1]
            at += 1
    return Parsed(8 + size, at, list(chunks), pad, chunks[b"fmt "], chunks[b"data"])


def samples(data, bits):
    """Sample values from -1 to 1 as plain floats."""
    if bits == 8:
        return [(byte - 128) / 128 for byte in data]
    return [word / 32768 for (word,) in struct.iter_unpack("<h", data)]
