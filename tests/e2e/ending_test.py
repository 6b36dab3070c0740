#!/usr/bin/python3
"""All ways out of the program, at every kind of moment, and what the next run finds."""

import unittest

from desk import Desk, wait_until
from game import (BUTTONS, CAPTIONS, CUP, CUP_FRAMES, FRESH, TEXTS, Game, dice_frames, differs_in, difference,
                  pile_place, settings, shows, table, write_settings)


class Ending(unittest.TestCase):
    def setUp(self):
        self.desk = Desk().__enter__()
        self.addCleanup(self.desk.__exit__)

    def assert_stored(self, counts):
        stored = settings(self.desk)
        self.assertEqual([int(stored[f"Stash{d}"]) for d in range(3)], counts)
        self.assertEqual(stored["SoundOn"], "True")
        for key in ("MainLeft", "MainTop"):
            self.assertEqual(int(stored[key]) % 15, 0, "a place in whole pixels")
        self.assertEqual(len(stored), 6)

    def wait_for_money(self, game, counts):
        wait_until(f"{counts}", lambda: difference(now := game.canvas(), table(counts, dice_frames(now)), TEXTS) is None)

    def test_closed_at_any_moment_the_run_keeps_what_lies_in_the_piles(self):
        with Game(self.desk) as game:
            game.play()
            self.assertEqual(game.close(), 0)
        self.assert_stored(FRESH)

        with Game(self.desk) as game:
            game.click(BUTTONS["Play Game"])
            game.answer("y")
            self.wait_for_money(game, FRESH)
            game.bet(0, 12, 0)
            game.click(CUP)
            wait_until("the shake", lambda: shows(game.canvas(), "CupCentre", CUP_FRAMES["CupCentre"]))
            self.assertEqual(game.close(), 0)
        self.assert_stored([12, 12, 10])

        with Game(self.desk) as game:
            game.click(BUTTONS["Play Game"])
            game.answer("y")
            self.wait_for_money(game, [12, 12, 10])
            game.bet(2, 9, 5)
            bet = game.canvas()
            game.click(CUP)
            # The caption of the square is what the settlement writes first.
            wait_until("the outcome", lambda: differs_in(game.canvas(), bet, CAPTIONS[5]))
            self.assertEqual(game.close(), 0)
        self.assert_stored([12, 12, 9])

        with Game(self.desk) as game:
            game.click(BUTTONS["Play Game"])
            game.answer("n")
            self.wait_for_money(game, FRESH)
            # A piece in the hand goes home first.
            game.drag(pile_place(0, 12), (300, 20))
            wait_until("the piece in the hand", lambda: shows(game.canvas(), "TenPound", (300, 20)))
            self.assertEqual(game.close(), 0)
            self.desk.release()
        self.assert_stored(FRESH)

    def test_exit_from_the_opening_form_asks_nothing_and_keeps_the_money(self):
        for leave in (lambda game: game.click(BUTTONS["Exit"]), lambda game: game.choose("g", "e")):
            write_settings(self.desk, Stash0=3, Stash1=40, Stash2=1, SoundOn="False")
            with Game(self.desk) as game:
                leave(game)
                self.assertEqual(game.ended(), 0)
            stored = settings(self.desk)
            self.assertEqual([stored[f"Stash{d}"] for d in range(3)] + [stored["SoundOn"]], ["3", "40", "1", "False"])
        with Game(self.desk) as game:
            # New Game from the menu, with the opening form up, offers the money as well. A pile shows 20 of its 40.
            game.choose("g", "n")
            game.answer("y")
            self.wait_for_money(game, [3, 40, 1])
            game.choose("g", "e")
            game.answer("y")
            self.assertEqual(game.ended(), 0)
        self.assertEqual(settings(self.desk)["Stash1"], "40")


if __name__ == "__main__":
    unittest.main()
