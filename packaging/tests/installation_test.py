#!/usr/bin/python3 -B
"""What an installation holds.   installation_test.py BUILD TREE  installs the build into the tree, and looks at it."""

import pathlib
import shutil
import subprocess
import sys
import unittest

from PIL import Image

HOME = pathlib.Path(__file__).parents[2]
sys.path.append(str(HOME / "packaging"))
import make_icons

NAME = "thistle-and-lantern"
ICONS = {size: f"share/icons/hicolor/{size}x{size}/apps/{NAME}.png" for size in (16, 24, 32, 48, 64, 128, 256)}
FILES = {
    f"bin/{NAME}", f"share/applications/{NAME}.desktop", f"share/doc/{NAME}/changelog.gz",
    f"share/doc/{NAME}/copyright", f"share/man/man6/{NAME}.6.gz", *ICONS.values(),
    "share/metainfo/example.quenby_software.ThistleAndLantern.metainfo.xml",
}


class Installation(unittest.TestCase):
    def test_every_file_and_no_other(self):
        self.assertEqual({str(path.relative_to(TREE)) for path in TREE.rglob("*") if not path.is_dir()}, FILES)

    def test_licences_are_whole(self):
        text = (TREE / f"share/doc/{NAME}/copyright").read_text()
        for licence in ("LICENSE", "desktop/fonts/OFL.txt"):
            self.assertIn((HOME / licence).read_text().strip(), text)

    def test_icons_have_their_sizes_and_are_the_same_on_other_systems(self):
        for size, installed in ICONS.items():
            with Image.open(TREE / installed) as icon:
                self.assertEqual(icon.size, (size, size))
        for name, made in (("windows/thistle-and-lantern.ico", make_icons.ico()),
                           ("macos/thistle-and-lantern.icns", make_icons.icns())):
            self.assertTrue((HOME / "packaging" / name).read_bytes() == made, f"{name}: run make_icons.py packaging")
            with Image.open(HOME / "packaging" / name) as largest:
                largest.load()
                self.assertEqual(largest.size, (256, 256))


if __name__ == "__main__":
    TREE = pathlib.Path(sys.argv.pop())
    shutil.rmtree(TREE, ignore_errors=True)
    subprocess.run(["cmake", "--install", sys.argv.pop(), "--prefix", TREE], check=True, stdout=subprocess.DEVNULL)
    unittest.main()
