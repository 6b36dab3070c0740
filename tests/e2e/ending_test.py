#!/usr/bin/python3
"""All ways out of the program, at every kind of moment, and what the store holds then."""

import os
import signal
import time
import unittest
from unittest import mock

from desk import Desk, wait_until
from game import (BUTTONS, CAPTIONS, CUP, CUP_FRAMES, FRESH, Game, differs_in, pile_place, settings, shows,
                  write_settings)

KILLS = 16
ON_WINDOWS = os.environ["GAME"].endswith(".exe")

OLD = {"MainLeft": "1500", "MainTop": "900", "SoundOn": "False", "Stash0": "7", "Stash1": "30", "Stash2": "1"}


def in_hand(game):
    game.drag(pile_place(0, 12), (300, 20))
    wait_until("the piece in the hand", lambda: shows(game.canvas(), "TenPound", (300, 20)))


def in_shake(game):
    game.bet(0, 12, 0)
    game.click(CUP)
    wait_until("the shake", lambda: shows(game.canvas(), "CupCentre", CUP_FRAMES["CupCentre"]))


def in_settlement(game):
    game.bet(2, 9, 5)
    bet = game.canvas()
    game.click(CUP)
    # The caption of the square is what the settlement writes first.
    wait_until("the outcome", lambda: differs_in(game.canvas(), bet, CAPTIONS[5]))


def behind_a_question(game):
    game.choose("g", "e")
    game.question()


def under_a_menu(game):
    game.desk.key("Alt_L", "g")
    wait_until("the menu", lambda: game.other_window(menu=True))


def minimised(game):
    game.window.ask_manager("WM_CHANGE_STATE", 3)
    wait_until("the window to go", lambda: not game.window.is_shown())


class Ending(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())
        write_settings(self.desk, **OLD)

    def start(self, game, earlier):
        """From the opening form to the table, with the earlier money or without."""
        game.choose("g", "n")
        game.answer(earlier)
        game.wait_for_turn()

    def assert_kept(self, counts):
        self.assertEqual(settings(self.desk), OLD | {f"Stash{d}": str(count) for d, count in enumerate(counts)})

    def test_closed_at_any_moment_the_run_keeps_what_lies_in_the_piles(self):
        # A piece in the hand goes home first.
        for moment, kept in ((in_hand, FRESH), (in_shake, [12, 12, 10]), (in_settlement, [13, 12, 9])):
            with self.subTest(moment.__name__), Game(self.desk) as game:
                self.start(game, "n")
                moment(game)
                self.assertEqual(game.close(), 0)
                self.desk.release()
                self.assert_kept(kept)

    @unittest.skipIf(ON_WINDOWS, "there are no signals, and no display that goes")
    def test_a_signal_ends_the_run_as_a_close_does(self):
        moments = ((signal.SIGTERM, in_shake, [12, 12, 10]), (signal.SIGINT, behind_a_question, FRESH),
                   (signal.SIGHUP, under_a_menu, FRESH), (signal.SIGQUIT, minimised, FRESH))
        for number, moment, kept in moments:
            write_settings(self.desk, **OLD)
            with self.subTest(moment.__name__), Game(self.desk) as game:
                self.start(game, "n")
                moment(game)
                game.process.send_signal(number)
                self.assertEqual(game.ended(), 0)
                self.assert_kept(kept)

    @unittest.skipIf(ON_WINDOWS, "there are no signals, and no display that goes")
    def test_a_signal_that_was_ignored_from_the_start_stays_so(self):
        with mock.patch.dict(os.environ, GAME=self.desk.launcher("trap '' HUP")), Game(self.desk) as game:
            game.process.send_signal(signal.SIGHUP)
            self.start(game, "n")
            self.assertEqual(game.close(), 0)

    @unittest.skipIf(ON_WINDOWS, "there are no signals, and no display that goes")
    def test_the_money_is_kept_where_the_window_system_breaks_off(self):
        for breaks_off in (lambda game: game.window.kill(), lambda _: self.desk.lose_server()):
            write_settings(self.desk, **OLD)
            with Game(self.desk) as game:
                self.start(game, "n")
                in_shake(game)
                breaks_off(game)
                game.ended()
                self.assert_kept([12, 12, 10])

    def test_exit_on_the_opening_form_asks_nothing_and_leaves_the_money(self):
        with Game(self.desk) as game:
            game.click(BUTTONS["Exit"])
            self.assertEqual(game.ended(), 0)
        self.assertEqual(settings(self.desk), OLD)

    def test_killed_while_it_ends_it_leaves_the_old_values_or_the_new_ones(self):
        for kill in range(KILLS):
            write_settings(self.desk, **OLD)
            with self.subTest(kill=kill), Game(self.desk) as game:
                self.start(game, "n")
                game.window.close()
                # From half a millisecond to a fifth of a second: before, amid and after the writing.
                time.sleep(0.0005 * 1.5 ** kill)
                game.process.kill()
                game.process.wait()
                stored = settings(self.desk)
                self.assertEqual(stored.keys(), OLD.keys())
                self.assertIn([int(stored[f"Stash{d}"]) for d in range(3)], ([7, 30, 1], FRESH))


if __name__ == "__main__":
    unittest.main()
