#!/usr/bin/python3
"""The frame under real window managers, and with none: its size, its place, and its peace."""

import pathlib
import time
import unittest

from desk import Desk, wait_until
from game import (CLIENT, FRESH, TABLE, TEXTS, Game, dice_frames, difference, settings, table, under_menu,
                  write_settings)
from Xlib import X

STRETCH = 5  # seconds


def wake_ups_and_ticks(pid):
    """How often the process has stopped to wait, and how much processor time it has used."""
    waits = 0
    for status in pathlib.Path(f"/proc/{pid}/task").glob("*/status"):
        try:
            lines = status.read_text().splitlines()
        except OSError:
            continue  # a thread that has just ended
        waits += sum(int(line.split()[1]) for line in lines if line.startswith("voluntary_ctxt_switches"))
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    return waits, int(fields[11]) + int(fields[12])


class Frame:
    manager = None

    def setUp(self):
        self.desk = Desk(self.manager).__enter__()
        self.addCleanup(self.desk.__exit__)

    def wait_for_exact(self, game):
        """The table stands whole and alone below a menu bar, in a window that holds nothing else."""

        def look():
            picture = game.window.picture()
            if picture.width != CLIENT[0] or not 416 < picture.height < 446:
                return False
            menu = picture.crop((0, 0, picture.width, picture.height - CLIENT[1]))
            frames = dice_frames(canvas := under_menu(picture))
            return (TABLE not in [colour for _, colour in menu.getcolors(10000)] and None not in frames
                    and difference(canvas, table(FRESH, frames), TEXTS) is None)

        wait_until("the table at its exact size", look)

    def sizes(self, game):
        """The sizes that the window has been told since the last look."""
        display = self.desk.display
        display.sync()
        events = [display.next_event() for _ in range(display.pending_events())]
        return [(e.width, e.height) for e in events
                if e.type == X.ConfigureNotify and e.window.id == game.window.id]

    def wait_for_peace(self, game):
        """Waits for a stretch in which the game does nothing at all and is told no size."""
        last, since = None, time.monotonic()

        def look():
            nonlocal last, since
            now = wake_ups_and_ticks(game.process.pid)
            if now != last or self.sizes(game):
                last, since = now, time.monotonic()
            return time.monotonic() - since > STRETCH

        wait_until(f"{STRETCH} s without work in an idle game", look)

    def test_no_other_size_in_the_normal_state(self):
        with Game(self.desk) as game:
            game.play()
            self.wait_for_exact(game)
            game.window.window.change_attributes(event_mask=X.StructureNotifyMask)
            left, top, width, height = game.window.rect()
            if self.manager:
                self.desk.move(left + width // 2, top + height // 2)
                arrow = self.desk.pointer_shape()
                border = left + width // 2, top + height + 1
                self.desk.move(*border)
                wait_until("a border under the pointer", lambda: self.desk.pointer_shape() != arrow)
                self.desk.drag(border, (border[0] + 30, border[1] + 94))
                self.desk.release()
            # Another program asks for another size, as a script of the user's might.
            game.window.window.configure(width=width + 90, height=height + 94)
            if not self.manager:
                wait_until("the foreign size", lambda: (width + 90, height + 94) in self.sizes(game))
            self.desk.move(1, 1)
            self.wait_for_peace(game)
            self.assertEqual(game.window.rect()[2:], (width, height))
            self.wait_for_exact(game)

    def test_place_is_kept_without_creeping(self):
        seen = []
        for run in range(5):
            with Game(self.desk) as game:
                if run == 0:
                    game.window.window.configure(x=173, y=131)
                    wait_until("the move", lambda: abs(game.window.rect()[0] - 173) < 20)
                else:
                    wait_until("the same place", lambda: game.window.rect() == place)
                place = game.window.rect()
                self.assertEqual(game.close(), 0)
            seen.append((settings(self.desk)["MainLeft"], settings(self.desk)["MainTop"]))
        self.assertEqual(len(set(seen)), 1, seen)
        self.assertLess(abs(int(seen[0][0]) - 173 * 15), 20 * 15, seen)


class Managed(Frame):
    def maximise(self, game, add=True):
        atom = self.desk.display.intern_atom
        game.window.ask_manager("_NET_WM_STATE", add, atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                atom("_NET_WM_STATE_MAXIMIZED_HORZ"), 1)

    def minimise_and_bring_back(self, game):
        game.window.ask_manager("WM_CHANGE_STATE", 3)
        wait_until("the window to go", lambda: not game.window.is_shown())
        game.window.ask_manager("_NET_ACTIVE_WINDOW", 2)
        wait_until("the window to come back", game.window.is_shown)

    def wait_for_maximised(self, game, origin, menu_height):
        """The table stands at the offset of the start; around it there is its colour alone."""

        def look():
            picture = game.window.picture()
            if picture.width < 1200:
                return False
            left, top = origin[0], origin[1] + menu_height
            place = left, top, left + CLIENT[0], top + CLIENT[1]
            inside = picture.crop(place)
            picture.paste(TABLE, place)
            around = picture.crop((0, menu_height, picture.width, picture.height))
            return (around.getcolors(1) and None not in dice_frames(inside)
                    and difference(inside, table(FRESH, dice_frames(inside)), TEXTS) is None)

        wait_until("the maximised table", look)

    def test_maximise_minimise_restore(self):
        origin = 201, 103
        write_settings(self.desk, MainLeft=origin[0] * 15, MainTop=origin[1] * 15)
        with Game(self.desk) as game:
            game.play()
            self.wait_for_exact(game)
            normal = game.window.rect()
            menu_height = normal[3] - CLIENT[1]
            self.maximise(game)
            self.wait_for_maximised(game, origin, menu_height)
            for way_back in (lambda: self.maximise(game, False), lambda: self.minimise_and_bring_back(game)):
                way_back()
                wait_until("the place before", lambda: game.window.rect() == normal)
                self.wait_for_exact(game)
            self.maximise(game)
            self.wait_for_maximised(game, origin, menu_height)
            self.minimise_and_bring_back(game)
            self.wait_for_maximised(game, origin, menu_height)
            # Ended while maximised, the run leaves the stored place alone.
            self.assertEqual(game.close(), 0)
        stored = settings(self.desk)
        self.assertEqual((stored["MainLeft"], stored["MainTop"]), (str(origin[0] * 15), str(origin[1] * 15)))
        self.assertEqual(stored["Stash0"], "13")


class Openbox(Managed, unittest.TestCase):
    manager = "openbox"


class Xfwm4(Managed, unittest.TestCase):
    manager = "xfwm4"


class Metacity(Managed, unittest.TestCase):
    manager = "metacity"


class NoManager(Frame, unittest.TestCase):
    pass


if __name__ == "__main__":
    unittest.main()
