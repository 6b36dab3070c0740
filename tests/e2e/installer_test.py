#!/usr/bin/python3
"""The installer for Windows: in, over an older version, not over a running game, and out again without a trace but the
settings."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

import wine
from desk import Desk, wait_until
from game import FRESH, TITLE, Game, settings
from launch import launch
from seen import kept, opens_with

NAME = "thistle-and-lantern"
HOME = pathlib.Path(__file__).parents[2]
PROGRAM = pathlib.Path(os.environ["GAME"])
UNINSTALL = rf"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\{TITLE}"
FILES = {f"{NAME}.exe", "Licences.txt", "uninstall.exe"}


def names(folder):
    return {path.name for path in folder.iterdir()}


class Installer(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())
        self.windows = launch(self.desk)
        self.drive = self.windows.folder / "drive_c"

    def run_program(self, *words):
        """Runs a program to its end, and returns its status."""
        return self.desk.start([wine.LOADER, *words], quiet=True, **wine.variables(self.windows.folder)).wait(30)

    def reg(self, *words):
        return self.windows.run("reg", *words)

    def entry(self):
        """What the list of programs is told, by name."""
        return dict(re.findall(r"^ +(\w+) +REG_\w+ +(.*?)\s*$", self.reg("query", UNINSTALL), re.M))

    def install(self, *options):
        """Installs without a question, and returns the folder that the list of programs is told."""
        self.assertEqual(self.run_program(SETUP, "/S", *options), 0)
        return self.local(self.entry()["InstallLocation"])

    def uninstall(self):
        uninstaller, option = re.fullmatch('"(.*)" (/S)', self.entry()["QuietUninstallString"]).groups()
        self.assertEqual(self.run_program(uninstaller, option), 0)
        # It has handed over to a copy of itself.
        wait_until("the entry to go", lambda: not self.entry())

    def local(self, path):
        return self.drive / path.removeprefix("C:\\").replace("\\", "/")

    def installed(self, folder):
        """The installed game, on the screen."""
        self.enterContext(mock.patch.dict(os.environ, GAME=str(folder / PROGRAM.name)))
        return Game(self.desk)

    def traces(self):
        """Files with the game's name in their paths, and lines of the registry with it."""
        lines = [str(path.relative_to(self.drive)) for path in self.drive.rglob("*")]
        for root in ("HKCU", "HKLM"):
            lines += self.reg("query", root, "/s").splitlines()
        return {line for line in lines if TITLE in line or NAME in line}

    def test_in_and_out_without_a_trace_but_the_settings(self):
        self.assertEqual(self.traces(), set())
        folder = self.install()
        self.assertEqual(names(folder), FILES)
        self.assertEqual((folder / PROGRAM.name).read_bytes(), PROGRAM.read_bytes())
        for licence in ("LICENSE", "desktop/fonts/OFL.txt"):
            self.assertIn((HOME / licence).read_text().strip(), (folder / "Licences.txt").read_text())
        entry = self.entry()
        self.assertEqual(entry["DisplayName"], TITLE)
        self.assertEqual(self.local(entry["DisplayIcon"]), folder / PROGRAM.name)
        self.assertAlmostEqual(int(entry["EstimatedSize"], 16), PROGRAM.stat().st_size / 1024, delta=100)
        shortcut, = self.drive.rglob(f"Start Menu/Programs/{TITLE}.lnk")
        self.assertIn(entry["DisplayIcon"].encode(), shortcut.read_bytes())

        with self.installed(folder) as game:
            game.play()
            self.assertTrue(opens_with(game.canvas(), FRESH))
            self.assertEqual(game.close(), 0)
        stored = settings(self.desk)
        self.assertEqual(kept(self.desk), FRESH)

        self.uninstall()
        self.assertEqual(self.traces(), {rf"HKEY_CURRENT_USER\Software\{TITLE}"})
        self.assertEqual(settings(self.desk), stored)

    def test_it_takes_the_place_of_an_older_version_wherever_that_is(self):
        # Without a blank, as it must not be quoted.
        folder = self.install(r"/D=C:\Dice")
        self.assertEqual(folder, self.drive / "Dice")
        version = self.entry()["DisplayVersion"]
        self.reg("add", UNINSTALL, "/v", "DisplayVersion", "/d", "0.9.0", "/f")
        (folder / PROGRAM.name).write_bytes(b"older")
        (folder / "Licences.txt").unlink()
        (folder / "mine.txt").write_text("the player's own")
        self.assertEqual(self.install(), folder)
        self.assertEqual(self.entry()["DisplayVersion"], version)
        self.assertEqual((folder / PROGRAM.name).read_bytes(), PROGRAM.read_bytes())
        self.assertEqual(names(folder), FILES | {"mine.txt"})
        self.assertEqual(len(list(self.drive.rglob(PROGRAM.name))), 1)
        self.uninstall()
        self.assertEqual(names(folder), {"mine.txt"})

    def test_a_folder_that_is_gone_stands_in_nobodys_way(self):
        self.reg("add", UNINSTALL, "/v", "InstallLocation", "/d", r"Q:\Gone", "/f")
        folder = self.install()
        self.assertEqual(names(folder), FILES)

    def test_a_running_game_is_neither_replaced_nor_removed(self):
        folder = self.install(r"/D=C:\Dice")
        entry = self.entry()
        (folder / "Licences.txt").write_text("as it was")
        with self.installed(folder) as game:
            self.assertEqual(self.run_program(SETUP, "/S"), 2)
            # Told its folder it hands over to no copy, whose status nobody would see.
            self.assertEqual(self.run_program(folder / "uninstall.exe", "/S", f"_?={entry['InstallLocation']}"), 2)
            self.assertEqual(names(folder), FILES)
            self.assertEqual((folder / "Licences.txt").read_text(), "as it was")
            self.assertEqual(self.entry(), entry)
            game.play()
            self.assertEqual(game.close(), 0)
        self.install()
        self.assertNotEqual((folder / "Licences.txt").read_text(), "as it was")


if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="installer-") as made:
        SETUP = pathlib.Path(made, f"{NAME}-setup.exe")
        script = sys.argv.pop()
        subprocess.run(["makensis", "-V1", "-WX", f"-DPROGRAM={PROGRAM}", f"-DOUTPUT={SETUP}", script], check=True)
        unittest.main()
