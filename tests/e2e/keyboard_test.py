#!/usr/bin/python3
"""The game played with keys: opening form, menus, questions, and the table's one button."""

import unittest

from desk import Desk, wait_until
from game import (BUTTONS, FRESH, GET_CHANGE, TEXTS, Game, dice_frames, differs_in, difference, table)


class Keyboard(unittest.TestCase):
    def shows_money(self, game, counts):
        canvas = game.canvas()
        return difference(canvas, table(counts, dice_frames(canvas)), TEXTS) is None

    def test_opening_form(self):
        with Desk() as desk:
            with Game(desk) as game:
                desk.move(1, 1)
                wait_until("the keyboard", game.window.has_focus)
                # The mark of the focus wanders, and nothing else changes.
                order = ["Play Game", "Instructions", "Exit", "Options", "Play Game"]
                tour = list(zip(order, order[1:], ["Tab"] * 4)) + [("Play Game", "Options", "back")]
                for before, after, key in tour:
                    canvas = game.canvas()
                    desk.key(*(["Tab"] if key == "Tab" else ["Shift_L", "Tab"]))
                    wait_until(f"the focus on {after}", lambda: differs_in(game.canvas(), canvas, BUTTONS[after]))
                    changed = {name for name, place in BUTTONS.items() if differs_in(game.canvas(), canvas, place)}
                    self.assertEqual(changed, {before, after})
                desk.key("Shift_L", "Tab")
                desk.key("space")
                self.assertEqual(game.ended(), 0, "Exit, without a question")
            with Game(desk) as game:
                wait_until("the keyboard", game.window.has_focus)
                desk.key("Return")
                wait_until("the table", lambda: self.shows_money(game, FRESH))

    def test_menus_and_questions(self):
        with Desk() as desk, Game(desk) as game:
            game.play()
            game.bet(0, 12, 3)
            staked = game.canvas()
            desk.move(1, 1)

            game.choose("g", "e")
            box = game.question()
            asked = box.picture()
            desk.key("Escape")
            box.close()
            desk.key("Tab")
            wait_until("the focus to move", lambda: box.is_shown() and box.picture().tobytes() != asked.tobytes())
            game.answer("n")
            wait_until("the table as it was", lambda: game.canvas().tobytes() == staked.tobytes())

            game.choose("g", "n")
            game.answer("n")
            wait_until("the table as it was", lambda: game.canvas().tobytes() == staked.tobytes())
            game.choose("g", "n")
            game.answer("y")
            wait_until("a new game", lambda: self.shows_money(game, FRESH))

            game.choose("g", "e")
            game.question()
            desk.key("Return")
            self.assertEqual(game.ended(), 0, "Yes is what Enter answers")

    def test_get_change(self):
        with Desk() as desk, Game(desk) as game:
            game.play()
            wait_until("the keyboard", game.window.has_focus)
            canvas = game.canvas()
            desk.key("Tab")
            wait_until("the focus", lambda: differs_in(game.canvas(), canvas, GET_CHANGE))
            desk.key("space")
            wait_until("the exchange", lambda: self.shows_money(game, [12, 13, 15]))
            desk.key("space")
            wait_until("the next", lambda: self.shows_money(game, [11, 14, 20]))


if __name__ == "__main__":
    unittest.main()
