#!/usr/bin/python3
"""Packs the committed icons into the two containers that Windows and macOS want.

    make_icons.py FOLDER  writes windows/thistle-and-lantern.ico and macos/thistle-and-lantern.icns under the folder
"""

import pathlib
import struct
import sys

PICTURES = pathlib.Path(__file__).parents[1] / "Graphics" / "pictures"
SIZES = (16, 24, 32, 48, 64, 128, 256)
# The kinds of an icns, by pixels: the 64 is a 32 for dense screens.
KINDS = {16: b"icp4", 32: b"icp5", 64: b"ic12", 128: b"ic07", 256: b"ic08"}


def png(size):
    return (PICTURES / f"Icon{size}.png").read_bytes()


def ico():
    entries, images = b"", b""
    for size in SIZES:
        offset = 6 + 16 * len(SIZES) + len(images)
        # A byte holds the size, and 0 stands for 256.
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(png(size)), offset)
        images += png(size)
    return struct.pack("<HHH", 0, 1, len(SIZES)) + entries + images


def icns():
    images = b"".join(kind + struct.pack(">I", 8 + len(png(size))) + png(size) for size, kind in KINDS.items())
    return b"icns" + struct.pack(">I", 8 + len(images)) + images


def main(folder):
    for name, container in (("windows/thistle-and-lantern.ico", ico), ("macos/thistle-and-lantern.icns", icns)):
        path = pathlib.Path(folder) / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(container())


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__.strip())
    main(sys.argv[1])
