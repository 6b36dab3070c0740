"""The table of pictures: what each is called, how big it is and what it is made from."""

import hashlib
import json
import math
from dataclasses import dataclass
from pathlib import Path

SOURCE = Path(__file__).resolve().parent
PICTURES = SOURCE.parent / "pictures"
HASHES = "sources.sha256"


@dataclass
class Picture:
    name: str
    width: int
    height: int
    # A colour, "transparent", or "opaque" where the art itself reaches every edge.
    ground: str
    maker: str
    # Patterns below this folder; a drawing comes first.
    sources: list
    kilobytes: int
    # Where the drawing sits at single scale; the whole picture if not said.
    box: tuple = ()
    # How many pixels deep the edges show nothing but ground.
    clear: int = 0
    # A picture that would suffer from being scaled at run time is carried in more of them.
    scales: tuple = (1, 2)

    def file(self, folder, scale):
        return folder / f"{self.name}{'' if scale == 1 else f'@{scale}x'}.png"

    def size(self, scale):
        """In pixels; where the drawing ends within one, its ground fills the rest."""
        return math.ceil(self.width * scale), math.ceil(self.height * scale)

    def source_files(self):
        found = []
        for pattern in self.sources:
            matches = sorted(SOURCE.glob(pattern))
            if not matches:
                raise FileNotFoundError(f"{self.name}: there is no source {pattern}")
            found += matches
        return found

    def source_hash(self):
        # Where a drawing sits shows in no other check, so it counts as a source.
        digest = hashlib.sha256(repr(list(self.box)).encode())
        for file in self.source_files():
            digest.update(file.read_bytes())
        return digest.hexdigest()


def read():
    rows = json.loads((SOURCE / "catalogue.json").read_text())
    return [Picture(**row) for row in rows]


def write_hashes(pictures, folder):
    lines = [f"{picture.source_hash()}  {picture.name}\n" for picture in pictures]
    (folder / HASHES).write_text("".join(lines))


def recorded_hashes(folder):
    file = folder / HASHES
    if not file.exists():
        return {}
    pairs = (line.split() for line in file.read_text().splitlines())
    return {name: digest for digest, name in pairs}
