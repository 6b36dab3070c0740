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
from game import CLIENT, FRESH, TABLE, Game, pile_place, settings, write_settings
from seen import minimised_and_back, opens_with

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

    def borders(self, window):
        """Where the mouse can take hold of each border, and which way it then pulls: by the shape of the pointer."""
        left, top, width, height = window.rect()
        middle = left + width // 2, top + height // 2
        self.desk.move(*middle)
        arrow = self.desk.pointer_shape()
        for x, y in ((1, 0), (0, 1), (-1, 0), (0, -1)):
            # From far outside inwards, so that it is the border and not the title bar.
            # KWin's have no shape of their own where no theme is installed: just outside.
            for away in [4] if MANAGER == "kwin_x11" else range(50, 0, -1):
                at = middle[0] + x * (width // 2 + away), middle[1] + y * (height // 2 + away)
                self.desk.move(*at)
                if MANAGER == "kwin_x11" or self.desk.pointer_shape() not in (arrow, self.on_ground):
                    yield at, (x, y)
                    break

    def all_borders(self, window):
        """The window manager changes the pointer's shape in its own time, so that a border may be missed in passing."""
        return wait_until("the mouse to find the borders",
                          lambda: found if len(found := list(self.borders(window))) >= 3 else None)

    def pull(self, window, at, way):
        """Drags a border outwards. Where there is no border to be had, the window manager is asked for it."""
        self.desk.move(*at)
        self.desk.press()
        if MANAGER == "kwin_x11":
            side = {(0, -1): 1, (1, 0): 3, (0, 1): 5, (-1, 0): 7}[way]
            window.ask_manager("_NET_WM_MOVERESIZE", *at, side, 1, 1)
        for step in range(1, 10):
            time.sleep(0.02)
            self.desk.move(at[0] + 10 * step * way[0], at[1] + 10 * step * way[1])
        # A hand that rests: most window managers deny every size as long as it holds the border.
        time.sleep(0.5)
        self.desk.release()

    def rest(self, game):
        """The window's place and size, once they have not changed for a while."""
        seen = [game.window.rect()]
        wait_until("the window to rest", lambda: seen.append(game.window.rect()) or time.sleep(0.05)
                   or len(set(seen[-16:])) == 1 and len(seen) > 16)
        return seen[-1]

    def test_no_other_size_in_the_normal_state_and_no_other_place(self):
        self.desk.move(1, 1)
        self.on_ground = self.desk.pointer_shape()
        with Game(self.desk) as game:
            game.play()
            self.wait_for_exact(game)
            # Away from the screen's edges.
            game.window.window.configure(x=300, y=200)
            wait_until("the move", lambda: abs(game.window.rect()[0] - 300) < 30)
            _, _, width, height = before = self.rest(game)
            for at, way in self.all_borders(game.window) if MANAGER else ():
                self.pull(game.window, at, way)
                wait_until(f"the frame as it was before a pull by {way}", lambda: game.window.rect() == before)
                self.assertEqual(self.rest(game), before)
            # Another program asks for another size, as a script of the user's might.
            game.window.window.configure(width=width + 90, height=height + 94)
            self.desk.move(1, 1)
            self.wait_for_peace(game)
            self.assertEqual(game.window.rect(), before)
            self.wait_for_exact(game)

    @unittest.skipUnless(MANAGER == "openbox", "one manager is enough, and its frame is all in view")
    def test_the_first_start_is_in_the_middle_of_what_panels_leave(self):
        panel = self.desk.panel(width=200)
        with Game(self.desk) as game:
            left, top, _, _ = game.window.frame()
            # To the width of a border, as some think that they have one.
            self.assertLessEqual(abs(left - (200 + (1280 - 200 - 640) // 2)), 4)
            self.assertLessEqual(abs(top - 254), 4)
        panel.destroy()

    def test_place_is_kept_without_creeping(self):
        for scale in (1, 1.5):
            seen = set()
            for run in range(10):
                with Game(self.desk, scale) as game:
                    if run == 0:
                        game.window.window.configure(x=173, y=131)
                        wait_until("the move", lambda: abs(game.window.rect()[0] - 173) < 20)
                        place = game.window.rect()
                    elif run == 1 and scale != 1:
                        # A layout's pixel is more than one of the screen's: the first start settles which.
                        place = game.window.rect()
                    wait_until("the same place", lambda: game.window.rect() == place)
                    self.assertEqual(game.close(), 0)
                seen.add((settings(self.desk)["MainLeft"], settings(self.desk)["MainTop"]))
            self.assertEqual(len(seen), 1, f"{seen} at {scale}")

    def maximise(self, game, add=True):
        atom = self.desk.display.intern_atom
        game.window.ask_manager("_NET_WM_STATE", add, atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                atom("_NET_WM_STATE_MAXIMIZED_HORZ"), 1)

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

    def drop_on_ground(self, game, left, top, menu_height):
        """A piece dropped beside the table goes home, and leaves the pointer there as it found it."""
        corner = game.window.rect()
        pile = pile_place(0, 12)
        taken = corner[0] + left + pile[0] + 4, corner[1] + menu_height + top + pile[1] + 10
        ground = corner[0] + 40, corner[1] + menu_height + 40
        self.desk.move(*taken)
        arrow = self.desk.pointer_shape()
        self.desk.drag(taken, ground)
        wait_until("the no-drop symbol", lambda: self.desk.pointer_shape() != arrow)
        self.desk.release()
        self.desk.move(*(side + 10 for side in ground))
        wait_until("the arrow on the ground", lambda: self.desk.pointer_shape() == arrow)

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
            self.drop_on_ground(game, *offset)
            for way_back in (lambda: self.maximise(game, False), lambda: minimised_and_back(game)):
                way_back()
                wait_until("the place before", lambda: game.window.rect() == normal)
                self.wait_for_exact(game)
            self.maximise(game)
            self.wait_for_maximised(game, *offset)
            minimised_and_back(game)
            self.wait_for_maximised(game, *offset)
            # Ended while maximised, the run leaves the stored place alone.
            self.assertEqual(game.close(), 0)
        self.assertLessEqual(stored.items(), settings(self.desk).items())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
