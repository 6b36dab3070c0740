#!/usr/bin/python3
"""The frame under real window managers, and with none: its size, its place, and its peace.

    frame_test.py MANAGER  names the window manager, or none
"""

import pathlib
import re
import sys
import time
import unittest

from desk import Desk, wait_until
from game import CLIENT, FRESH, TABLE, Game, settings, write_settings
from seen import opens_with

MANAGER = None if sys.argv[1] == "none" else sys.argv[1]
STRETCH = 3  # seconds


class Frame(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk(MANAGER))

    def wait_for_exact(self, game):
        """The table stands whole below a menu bar, in a window that holds nothing else."""

        def look():
            picture = game.window.picture()
            return (picture.width == CLIENT[0] and 10 < picture.height - CLIENT[1] < 40
                    and opens_with(game.canvas(), FRESH))

        wait_until("the table at its exact size", look)

    def wait_for_peace(self, game):
        """Waits for a stretch in which the game does nothing at all. Being told a size would wake it."""

        def wake_ups():
            return re.findall(r"ctxt_switches:\s*(\d+)", pathlib.Path(f"/proc/{game.process.pid}/status").read_text())

        def look():
            before = wake_ups()
            time.sleep(STRETCH)
            return wake_ups() == before

        wait_until(f"{STRETCH} s without work in an idle game", look)

    def test_no_other_size_in_the_normal_state(self):
        with Game(self.desk) as game:
            game.play()
            self.wait_for_exact(game)
            left, top, width, height = game.window.rect()
            if MANAGER:
                self.desk.move(left + width // 2, top + height // 2)
                arrow = self.desk.pointer_shape()
                border = left + width // 2, top + height + 1
                self.desk.move(*border)
                wait_until("a border under the pointer", lambda: self.desk.pointer_shape() != arrow)
                self.desk.drag(border, (border[0] + 30, border[1] + 94))
                self.desk.release()
            # Another program asks for another size, as a script of the user's might.
            game.window.window.configure(width=width + 90, height=height + 94)
            self.desk.move(1, 1)
            self.wait_for_peace(game)
            self.assertEqual(game.window.rect()[2:], (width, height))
            self.wait_for_exact(game)

    @unittest.skipUnless(MANAGER == "openbox", "one manager is enough, and its frame is all in view")
    def test_the_first_start_is_in_the_middle_of_what_panels_leave(self):
        panel = self.desk.panel(width=200)
        with Game(self.desk) as game:
            left, top, width, _ = game.window.frame()
            self.assertLessEqual(abs(left - (200 + (1280 - 200 - 640) // 2)), 1)
            self.assertLessEqual(abs(top - 254), 1)
        panel.destroy()

    def test_place_is_kept_without_creeping(self):
        seen = set()
        for run in range(5):
            with Game(self.desk) as game:
                if run == 0:
                    game.window.window.configure(x=173, y=131)
                    wait_until("the move", lambda: abs(game.window.rect()[0] - 173) < 20)
                    place = game.window.rect()
                wait_until("the same place", lambda: game.window.rect() == place)
                self.assertEqual(game.close(), 0)
            seen.add((settings(self.desk)["MainLeft"], settings(self.desk)["MainTop"]))
        self.assertEqual(len(seen), 1, seen)

    def maximise(self, game, add=True):
        atom = self.desk.display.intern_atom
        game.window.ask_manager("_NET_WM_STATE", add, atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                atom("_NET_WM_STATE_MAXIMIZED_HORZ"), 1)

    def minimise_and_bring_back(self, game):
        game.window.ask_manager("WM_CHANGE_STATE", 3)
        wait_until("the window to go", lambda: not game.window.is_shown())
        game.window.ask_manager("_NET_ACTIVE_WINDOW", 2)
        wait_until("the window to come back", game.window.is_shown)

    def wait_for_maximised(self, game, left, top, menu_height):
        """The table stands at the offset of the start; around it there is its colour alone."""

        def look():
            picture = game.window.picture()
            place = left, top + menu_height, left + CLIENT[0], top + menu_height + CLIENT[1]
            inside = picture.crop(place)
            picture.paste(TABLE, place)
            around = picture.crop((0, menu_height, picture.width, picture.height))
            return picture.width > 1200 and around.getcolors(1) and opens_with(inside, FRESH)

        wait_until("the maximised table", look)

    @unittest.skipUnless(MANAGER, "nobody to maximise")
    def test_maximise_minimise_restore(self):
        left, top = 201, 103
        stored = {"MainLeft": str(left * 15), "MainTop": str(top * 15)}
        write_settings(self.desk, **stored)
        with Game(self.desk) as game:
            game.play()
            self.wait_for_exact(game)
            normal = game.window.rect()
            offset = left, top, normal[3] - CLIENT[1]
            self.maximise(game)
            self.wait_for_maximised(game, *offset)
            for way_back in (lambda: self.maximise(game, False), lambda: self.minimise_and_bring_back(game)):
                way_back()
                wait_until("the place before", lambda: game.window.rect() == normal)
                self.wait_for_exact(game)
            self.maximise(game)
            self.wait_for_maximised(game, *offset)
            self.minimise_and_bring_back(game)
            self.wait_for_maximised(game, *offset)
            # Ended while maximised, the run leaves the stored place alone.
            self.assertEqual(game.close(), 0)
        self.assertLessEqual(stored.items(), settings(self.desk).items())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
