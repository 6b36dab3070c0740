#!/usr/bin/python3
"""Spoils good pictures in every way that matters and expects the check to name them."""

import dataclasses
import re
import shutil
import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "source"))

import numpy as np
from PIL import Image

import catalogue
import check
import engraving
import raster
import sheet
import supplies
import wood

ALL = {picture.name: picture for picture in catalogue.read()}


class Spoiled(unittest.TestCase):
    """Works on a copy of a few pictures in a folder of its own."""

    names = ("MatHeart", "FaceClub", "ThistleLantern32", "OnePound", "TenPound", "Wood")

    def setUp(self):
        room = tempfile.TemporaryDirectory()
        self.addCleanup(room.cleanup)
        self.folder = Path(room.name)
        self.pictures = [ALL[name] for name in self.names]
        for picture in self.pictures:
            for scale in picture.scales:
                shutil.copy(picture.file(catalogue.PICTURES, scale), self.folder)
        catalogue.write_hashes(self.pictures, self.folder)

    def faults(self):
        return list(check.faults(self.pictures, self.folder))

    def change(self, name, change):
        """Puts a changed image in place of a picture of single scale."""
        file = self.folder / f"{name}.png"
        with Image.open(file) as image:
            changed = change(image.convert("RGBA"))
        changed.save(file)

    def expect(self, *fragments):
        faults = self.faults()
        self.assertEqual(len(faults), 1, faults)
        for fragment in fragments:
            self.assertIn(fragment, faults[0])

    def test_good_pictures_pass(self):
        self.assertEqual(self.faults(), [])

    def test_missing_picture(self):
        (self.folder / "OnePound@2x.png").unlink()
        self.expect("OnePound@2x.png", "missing")

    def test_size_one_pixel_off(self):
        self.change("TenPound", lambda image: image.resize((59, 30)))
        self.expect("TenPound.png", "59 x 30, not 59 x 31")

    def test_ground_one_shade_off_in_one_pixel(self):
        def touch(image):
            image.putpixel((57, 99), (192, 255, 193, 255))
            return image
        self.change("MatHeart", touch)
        self.expect("MatHeart.png", "1 edge pixels")

    def test_hole_in_an_opaque_picture(self):
        def pierce(image):
            image.putpixel((30, 15), (0, 0, 0, 0))
            return image
        self.change("TenPound", pierce)
        self.expect("TenPound.png", "opaque")

    def test_filled_corner_of_a_clear_picture(self):
        def fill(image):
            image.putpixel((19, 19), (255, 255, 255, 255))
            return image
        self.change("OnePound", fill)
        self.expect("OnePound.png", "corner")

    def test_symbol_cut_from_white_paper(self):
        def cut(image):
            art = raster.render_svg(catalogue.SOURCE / "symbols/heart.svg", 88, 88)
            paper = raster.on_ground(100, 100, "#FFFFFF", art, (6, 2))
            pixels = np.asarray(paper).copy()
            pixels[(pixels == 255).all(axis=2)] = (192, 255, 192)
            return Image.fromarray(pixels)
        self.change("MatHeart", cut)
        self.expect("MatHeart.png", "fringe")

    def cut_from(self, name, paper):
        def cut(image):
            flat = Image.new("RGBA", image.size, paper)
            flat.alpha_composite(image)
            flat.putalpha(image.getchannel("A"))
            return flat
        self.change(name, cut)
        self.expect(name + ".png", "fringe")

    def test_emblem_cut_from_white_paper(self):
        self.cut_from("ThistleLantern32", "#FFFFFF")

    def test_coin_cut_from_the_table(self):
        self.cut_from("OnePound", "#FFFF80")

    def test_wood_too_dark_for_its_text(self):
        def stain(image):
            image.paste((90, 60, 20), (0, 200, 400, 203))
            return image
        self.change("Wood", stain)
        self.expect("Wood.png", "contrast")

    def test_wood_of_another_colour(self):
        self.change("Wood", lambda image: image.point(lambda tone: tone - 6).convert("RGB"))
        self.expect("Wood.png", "mean colour")

    def test_empty_picture(self):
        self.change("FaceClub", lambda image: Image.new("RGB", image.size, "white"))
        self.expect("FaceClub.png", "next to nothing")

    def test_other_format_under_the_same_name(self):
        file = self.folder / "Wood.png"
        Image.open(file).convert("RGB").save(file, "JPEG")
        self.expect("Wood.png", "JPEG")

    def test_bloated_file(self):
        file = self.folder / "FaceClub.png"
        file.write_bytes(file.read_bytes() + bytes(9000))
        self.expect("FaceClub.png", "kB")

    def test_source_newer_than_its_picture(self):
        record = self.folder / catalogue.HASHES
        record.write_text(re.sub(r"\w+(?=  TenPound)", "0" * 64, record.read_text()))
        self.expect("TenPound", "source changed")

    def test_source_gone(self):
        self.pictures[0] = dataclasses.replace(self.pictures[0], sources=["symbols/hart.svg"])
        self.expect("MatHeart", "no source symbols/hart.svg")

    def test_double_of_another_picture(self):
        shutil.copy(ALL["MatSpade"].file(catalogue.PICTURES, 2), self.folder / "MatHeart@2x.png")
        self.expect("MatHeart@2x.png does not show what MatHeart.png shows")

    def test_stranger(self):
        shutil.copy(self.folder / "Wood.png", self.folder / "Would.png")
        self.expect("Would.png", "not in the catalogue")


class Crafts(unittest.TestCase):
    def test_covered_notes_are_told_apart_by_their_left_strip(self):
        strips = []
        for name in ("TenPound", "FivePound"):
            with Image.open(ALL[name].file(catalogue.PICTURES, 1)) as note:
                strips.append(np.asarray(note.convert("RGB"))[:28, 1:8])
        tones = [strip.mean(axis=(0, 1)) for strip in strips]
        self.assertGreater(np.linalg.norm(tones[0] - tones[1]), 40)
        for strip in strips:
            self.assertGreater(np.ptp(check.luminance(strip)), 0.5, "the number is faint")

    def test_engraving_leaves_a_whole_drawing(self):
        for name in ("ten-pound.svg", "five-pound.svg"):
            text = engraving.engraved(catalogue.SOURCE / name)
            ElementTree.fromstring(text)
            self.assertNotIn("$", text)

    def test_wood_is_the_same_board_at_both_scales(self):
        small = np.asarray(wood.draw(200, 200).convert("L"), float)
        large = wood.draw(400, 400).convert("L").resize((200, 200), Image.Resampling.BOX)
        likeness = np.corrcoef(small.ravel(), np.asarray(large, float).ravel())[0, 1]
        self.assertGreater(likeness, 0.9)

    def test_reducing_keeps_the_colour_of_soft_edges(self):
        pixels = np.zeros((16, 16, 4), np.uint8)
        pixels[:, :7] = (200, 20, 30, 255)
        edge = raster.reduce_to(Image.fromarray(pixels), 4, 4).getpixel((1, 1))
        self.assertTrue(0 < edge[3] < 255)
        self.assertTrue(np.abs(np.subtract(edge[:3], (200, 20, 30))).max() <= 2, edge)

    def test_cards_of_the_sheet_do_not_overlap(self):
        cards = [Image.new("RGB", (500 + 90 * step, 40 + step)) for step in range(9)]
        *corners, (_, height) = sheet.places(cards)
        taken = np.zeros((height, sheet.WIDTH), int)
        for card, (left, top) in zip(cards, corners):
            taken[top:top + card.height, left:left + card.width] += 1
        self.assertEqual(taken.max(), 1)
        self.assertEqual(taken.sum(), sum(card.width * card.height for card in cards))

    def test_a_missing_program_names_its_package(self):
        programs = supplies.PROGRAMS
        self.addCleanup(programs.pop, "no-such-engraver")
        programs["no-such-engraver"] = "engraver-package"
        self.assertIn("engraver-package", supplies.missing(programs))


if __name__ == "__main__":
    unittest.main()
