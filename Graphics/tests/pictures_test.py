#!/usr/bin/python3
"""Spoils good pictures in every way that matters and expects the check to name them."""

import dataclasses
import functools
import re
import shutil
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "source"))

import numpy as np
from PIL import Image, ImageFilter

import catalogue
import check
import raster

ALL = {picture.name: picture for picture in catalogue.read()}


def cut_from(paper):
    """The picture as it looks when it was drawn on another ground."""
    def cut(image):
        flat = Image.new("RGBA", image.size, paper)
        flat.alpha_composite(image)
        flat.putalpha(image.getchannel("A"))
        return flat
    return cut


def symbol_cut_from_white(_):
    art = raster.render_svg(catalogue.SOURCE / "symbols/heart.svg", 88, 88)
    pixels = np.asarray(raster.on_ground(100, 100, "#FFFFFF", art, (6, 2))).copy()
    pixels[(pixels == 255).all(axis=2)] = (192, 255, 192)
    return Image.fromarray(pixels)


def edged(image, paint):
    """The picture with its outermost pixels painted."""
    inside = image.getchannel("A").filter(ImageFilter.MinFilter(3))
    painted = Image.new("RGBA", image.size, paint)
    painted.putalpha(image.getchannel("A"))
    painted.paste(image, mask=inside)
    return painted


def narrowed(image):
    width, height = image.size
    slim = raster.reduce_to(image, width * 3 // 4, height)
    return raster.on_ground(width, height, "transparent", slim, (width // 8, 0))


def on_one_line_of_tones(image):
    tone = np.asarray(image.convert("L"), float)[..., None]
    colours = check.WOOD_MEAN + (tone - tone.mean()) * (0.7, 1.1, 1.3)
    return Image.fromarray(np.clip(colours, 0, 255).astype(np.uint8))


def redraw(spoil, file):
    with Image.open(file) as image:
        changed = image.convert("RGBA")
    (spoil(changed) or changed).save(file)


# A picture, what becomes of its image at single scale, and what the check must say.
SPOILED = [
    ("TenPound", lambda image: image.resize((59, 30)), "59 x 30, not 59 x 31"),
    ("TenPound", lambda image: image.putpixel((30, 15), (0, 0, 0, 0)), "opaque"),
    ("MatHeart", lambda image: image.putpixel((57, 99), (192, 255, 193, 255)), "1 edge pixels"),
    ("MatHeart", symbol_cut_from_white, "fringe"),
    ("OnePound", lambda image: image.putpixel((19, 19), (255, 255, 255, 255)), "corner"),
    ("OnePound", cut_from("#FFFF80"), "fringe"),
    ("ThistleLantern32", cut_from("#FFFFFF"), "fringe"),
    ("ThistleLantern32", lambda image: edged(image, (10, 10, 10)), "dark on"),
    ("ThistleLantern32", lambda image: edged(image, (140, 150, 30)), "gold and black alone"),
    ("ThistleLantern32", narrowed, "of its width"),
    ("ThistleLantern32", lambda image: image.paste((0, 0, 0, 0), (0, 0, 32, 4)), "of its height"),
    ("Wood", lambda image: image.paste((90, 60, 20), (0, 200, 400, 203)), "contrast"),
    ("Wood", lambda image: image.point(lambda tone: tone - 6).convert("RGB"), "mean colour"),
    ("Wood", lambda image: image.convert("RGB").filter(ImageFilter.BoxBlur(9)), "no grain"),
    ("Wood", on_one_line_of_tones, "colours on a button"),
    ("Anidice00", lambda image: image.filter(ImageFilter.BoxBlur(1)), "smeared"),
    ("FaceClub", lambda image: image.paste("white", (0, 0, *image.size)), "next to nothing"),
]
# A file, what becomes of it, and what the check must say.
SPOILED_FILES = [
    ("OnePound@2x.png", Path.unlink, "missing"),
    ("FaceClub.png", lambda file: file.write_bytes(file.read_bytes() + bytes(9000)), "kB"),
    ("Wood.png", lambda file: Image.open(file).convert("RGB").save(file, "JPEG"), "JPEG"),
    ("ThistleLantern32@2x.png",
     lambda file: shutil.copy(ALL["Icon64"].file(catalogue.PICTURES, 1), file),
     "does not show what ThistleLantern32.png shows"),
    ("ThistleLantern32@2x.png", lambda file: narrowed(Image.open(file)).save(file), "of its width"),
    ("Anidice00@1.25x.png", lambda file: Image.open(file).crop((0, 0, 115, 131)).save(file),
     "115 x 131, not 115 x 132"),
    ("Anidice00@1.5x.png",
     lambda file: shutil.copy(ALL["Anidice04"].file(catalogue.PICTURES, 1.5), file),
     "does not show what Anidice00.png shows"),
    ("Wood@2x.png",
     lambda file: Image.open(file.with_name("Wood.png")).resize((800, 800)).save(file),
     "no finer than Wood.png"),
]


class Spoiled(unittest.TestCase):
    """Works on a copy of a few pictures in a folder of its own."""

    names = ("MatHeart", "FaceClub", "ThistleLantern32", "OnePound", "TenPound", "Wood",
             "Anidice00")

    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        # A spoiled picture is not packed as well as a built one.
        self.pictures = [dataclasses.replace(ALL[name], kilobytes=2 * ALL[name].kilobytes)
                         for name in self.names]
        for picture in self.pictures:
            for scale in picture.scales:
                shutil.copy(picture.file(catalogue.PICTURES, scale), self.folder)
        catalogue.write_hashes(self.pictures, self.folder)

    def expect(self, *fragments):
        faults = list(check.faults(self.pictures, self.folder))
        self.assertEqual(len(faults), 1, faults)
        for fragment in fragments:
            self.assertIn(fragment, faults[0])

    def test_spoiled(self):
        self.assertEqual(list(check.faults(self.pictures, self.folder)), [])
        redrawn = [(f"{name}.png", functools.partial(redraw, spoil), fault) for name, spoil, fault in SPOILED]
        for name, spoil, fault in redrawn + SPOILED_FILES:
            file = self.folder / name
            good = file.read_bytes()
            with self.subTest(name, fault=fault):
                spoil(file)
                self.expect(name, fault)
            file.write_bytes(good)

    def test_all_together(self):
        with mock.patch.object(check, "BYTES", 200_000):
            self.expect("all pictures together take")

    def test_stranger(self):
        shutil.copy(self.folder / "Wood.png", self.folder / "Would.png")
        self.expect("Would.png", "not in the catalogue")

    def test_source_changed_moved_or_gone(self):
        self.addCleanup(setattr, catalogue, "SOURCE", catalogue.SOURCE)
        catalogue.SOURCE = shutil.copytree(catalogue.SOURCE, self.folder / "source")
        note = catalogue.SOURCE / "ten-pound.svg"
        note.write_text(note.read_text() + "\n")
        self.expect("TenPound", "source changed")
        catalogue.write_hashes(self.pictures, self.folder)
        self.pictures[0] = dataclasses.replace(self.pictures[0], box=[7, 2, 88, 88])
        self.expect("MatHeart", "source changed")
        self.pictures[0] = dataclasses.replace(self.pictures[0], sources=["symbols/hart.svg"])
        self.expect("MatHeart", "no source symbols/hart.svg")


def seen(name, scale=1):
    with Image.open(ALL[name].file(catalogue.PICTURES, scale)) as picture:
        return np.asarray(picture.convert("RGB"), int)


# How somebody sees light who lacks the first, the second or the third kind of cones.
COLOUR_BLIND = (((0.152, 1.053, -0.205), (0.115, 0.786, 0.099), (-0.004, -0.048, 1.052)),
                ((0.367, 0.861, -0.228), (0.280, 0.673, 0.047), (-0.012, 0.043, 0.969)),
                ((1.256, -0.077, -0.179), (-0.078, 0.931, 0.148), (0.005, 0.691, 0.304)))


class Notes(unittest.TestCase):
    def test_covered_notes_are_told_apart_by_their_left_strip(self):
        strips = [seen(name)[:28, 1:8] for name in ("TenPound", "FivePound")]
        light = [check.linear_light()[strip].mean(axis=(0, 1)) for strip in strips]
        for sight in (np.identity(3), *COLOUR_BLIND):
            brighter = (sight @ light[1]).sum() / (sight @ light[0]).sum()
            self.assertGreater(brighter, 2, "dark brown, pale green")
        for strip in strips:
            self.assertGreater(np.ptp(check.luminance(strip)), 0.5, "the number is faint")

    def test_nothing_runs_over_the_frame(self):
        for name in ("TenPound", "FivePound"):
            for scale in (1, 2):
                frame = check.border(seen(name, scale), scale)
                self.assertLess(np.ptp(frame, axis=0).max(), 8, f"{name} at {scale}")

    def test_vignettes_are_cut_in_lines(self):
        for name in ("TenPound", "FivePound"):
            vignette = check.luminance(seen(name, 2))[6:50, 60:100]
            # Lines lie in every second row; without them neighbouring rows are much alike.
            self.assertGreater(np.abs(np.diff(vignette.mean(axis=1))).mean(), 0.1, name)


class Solids(unittest.TestCase):
    def test_each_is_carried_in_every_scale_that_a_desktop_looks_for(self):
        header = (catalogue.SOURCE.parents[1] / "desktop/common/scale.h").read_text()
        listed = re.search(r"kCarriedScales\[\] = \{(.*)\}", header).group(1)
        scales = [float(scale) for scale in listed.split(",")]
        for picture in ALL.values():
            if picture.maker == "solid":
                self.assertEqual(picture.scales, scales, picture.name)

    def test_every_step_of_the_tumble_turns_the_die_as_far(self):
        frames = [seen(f"Anidice{step:02}") for step in range(24)]
        steps = [np.abs(one - other).mean() for one, other in zip(frames, frames[1:] + frames[:1])]
        self.assertLess(np.std(steps) / np.mean(steps), 0.15, steps)

    def test_a_die_leaves_the_thrown_cup_only(self):
        printed = {}
        for name in ("CupStanding", "CupCentre", "CupLeft", "CupRight", "CupThrow"):
            red, green, blue = np.moveaxis(seen(name), 2, 0)
            printed[name] = ((red > 120) & (green < 60) & (blue < 90)).sum()
        self.assertGreater(printed.pop("CupThrow"), 25)
        self.assertEqual(set(printed.values()), {0}, printed)


if __name__ == "__main__":
    unittest.main()
