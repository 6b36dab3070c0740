#!/usr/bin/python3 -B
"""What an installation holds.   installation_test.py BUILD TREE  installs the build into the tree, and looks at it."""

import pathlib
import shutil
import subprocess
import sys
import unittest

from PIL import Image

HOME = pathlib.Path(__file__).parents[2]
NAME = "thistle-and-lantern"
SIZES = (16, 24, 32, 48, 64, 128, 256)
FILES = {
    f"bin/{NAME}", f"share/applications/{NAME}.desktop", f"share/doc/{NAME}/changelog.gz",
    f"share/doc/{NAME}/copyright", f"share/man/man6/{NAME}.6.gz",
    "share/metainfo/example.quenby_software.ThistleAndLantern.metainfo.xml",
    *(f"share/icons/hicolor/{size}x{size}/apps/{NAME}.png" for size in SIZES),
}


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(TREE, ignore_errors=True)
        subprocess.run(["cmake", "--install", BUILD, "--prefix", TREE], check=True, stdout=subprocess.DEVNULL)

    def test_every_file_and_no_other(self):
        self.assertEqual({str(path.relative_to(TREE)) for path in TREE.rglob("*") if not path.is_dir()}, FILES)

    def test_icons_have_the_size_they_are_filed_under(self):
        for size in SIZES:
            with Image.open(TREE / f"share/icons/hicolor/{size}x{size}/apps/{NAME}.png") as icon:
                self.assertEqual(icon.size, (size, size))

    def test_licences_are_whole(self):
        text = (TREE / f"share/doc/{NAME}/copyright").read_text()
        for licence in ("LICENSE", "desktop/qt/fonts/OFL.txt"):
            self.assertIn((HOME / licence).read_text().strip(), text)

    def test_other_systems_icons_show_the_same(self):
        packed = {"windows/thistle-and-lantern.ico": SIZES, "macos/thistle-and-lantern.icns": (16, 32, 64, 128, 256)}
        for name, sizes in packed.items():
            for size in sizes:
                with (Image.open(HOME / "packaging" / name) as container,
                      Image.open(HOME / f"Graphics/pictures/Icon{size}.png") as icon):
                    container.size = next(s for s in container.info["sizes"] if s[0] * (s[2:] or (1,))[0] == size)
                    container.load()
                    same = container.convert("RGBA").tobytes() == icon.convert("RGBA").tobytes()
                self.assertTrue(same, f"{name} at {size} pixels is not the present icon: run make_icons.py packaging")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    TREE = pathlib.Path(sys.argv.pop())
    BUILD = sys.argv.pop()
    unittest.main()
