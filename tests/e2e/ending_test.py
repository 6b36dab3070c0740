#!/usr/bin/python3
"""All ways out of the program, at every kind of moment, and what the store holds then."""

import os
import signal
import time
import unittest
from unittest import mock

from desk import Desk
from game import BUTTONS, FRESH, Game, settings, write_settings
from seen import OLD, in_hand, in_shake, kept, minimised, start_afresh, under_a_menu

KILLS = 16
ON_WINDOWS = os.environ["GAME"].endswith(".exe")


def behind_a_question(game):
    game.choose("g", "e")
    game.question()


class Ending(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())
        write_settings(self.desk, **OLD)

    def assert_kept(self, counts):
        self.assertEqual(settings(self.desk), OLD | {f"Stash{d}": str(count) for d, count in enumerate(counts)})

    def test_closed_with_a_piece_in_the_hand_that_goes_home_first(self):
        with Game(self.desk) as game:
            start_afresh(game)
            in_hand(game)
            self.assertEqual(game.close(), 0)
            self.desk.release()
        self.assert_kept(FRESH)

    @unittest.skipIf(ON_WINDOWS, "there are no signals, and no display that goes")
    def test_a_signal_ends_the_run_as_a_close_does(self):
        moments = ((signal.SIGTERM, in_shake, [12, 12, 10]), (signal.SIGINT, behind_a_question, FRESH),
                   (signal.SIGHUP, under_a_menu, FRESH), (signal.SIGQUIT, minimised, FRESH))
        for number, moment, counts in moments:
            write_settings(self.desk, **OLD)
            with self.subTest(moment.__name__), Game(self.desk) as game:
                start_afresh(game)
                moment(game)
                game.process.send_signal(number)
                self.assertEqual(game.ended(), 0)
                self.assert_kept(counts)

    @unittest.skipIf(ON_WINDOWS, "there are no signals, and no display that goes")
    def test_a_signal_that_was_ignored_from_the_start_stays_so(self):
        with mock.patch.dict(os.environ, GAME=self.desk.launcher("trap '' HUP")), Game(self.desk) as game:
            game.process.send_signal(signal.SIGHUP)
            start_afresh(game)
            self.assertEqual(game.close(), 0)

    @unittest.skipIf(ON_WINDOWS, "there are no signals, and no display that goes")
    def test_the_money_is_kept_where_the_window_system_breaks_off(self):
        for breaks_off in (lambda game: game.window.kill(), lambda _: self.desk.lose_server()):
            write_settings(self.desk, **OLD)
            with Game(self.desk) as game:
                start_afresh(game)
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
                start_afresh(game)
                game.window.close()
                # From half a millisecond to a fifth of a second: before, amid and after the writing.
                time.sleep(0.0005 * 1.5 ** kill)
                game.process.kill()
                game.process.wait()
                self.assertEqual(settings(self.desk).keys(), OLD.keys())
                self.assertIn(kept(self.desk), ([7, 30, 1], FRESH))


if __name__ == "__main__":
    unittest.main()
