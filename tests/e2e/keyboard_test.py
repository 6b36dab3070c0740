#!/usr/bin/python3
"""The game played with keys: opening form, menu, question, and the table's one button."""

import os
import unittest

from desk import Desk, wait_until
from game import BUTTONS, FRESH, GET_CHANGE, Game, differs_in
from seen import opens_with


class Keyboard(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())
        self.game = self.enterContext(Game(self.desk))
        self.desk.move(1, 1)
        wait_until("the keyboard", self.game.window.has_focus)

    def test_tab_goes_round_and_a_key_presses(self):
        order = ["Play Game", "Instructions", "Exit", "Options", "Play Game", "Options", "Play Game"]
        keys = [["Tab"]] * 4 + [["Shift_L", "Tab"], ["Tab"]]
        for before, after, pressed in zip(order, order[1:], keys):
            canvas = self.game.canvas()
            self.desk.key(*pressed)
            wait_until(f"the focus on {after}", lambda: differs_in(self.game.canvas(), canvas, BUTTONS[after]))
            changed = {name for name, place in BUTTONS.items() if differs_in(self.game.canvas(), canvas, place)}
            self.assertEqual(changed, {before, after})
        self.desk.key("Return")
        wait_until("the table", lambda: opens_with(self.game.canvas(), FRESH))
        canvas = self.game.canvas()
        self.desk.key("Tab")
        wait_until("the focus", lambda: differs_in(self.game.canvas(), canvas, GET_CHANGE))
        self.desk.key("space")
        wait_until("the exchange", lambda: opens_with(self.game.canvas(), [12, 13, 15]))

    def test_the_menu_bar_has_its_own_key(self):
        self.game.play()
        self.desk.key("F10")
        if os.environ["GAME"].endswith(".exe"):
            self.desk.key("Down")  # on Windows that key only leads there
        opened = wait_until("the menu", lambda: self.game.other_window(menu=True))
        self.desk.key("e")
        wait_until("the menu to close", lambda: not opened.is_shown())
        self.game.question()
        self.desk.key("Return")
        self.assertEqual(self.game.ended(), 0, "Yes is what Enter answers")

    def test_the_instructions_are_read_by_keys_after_a_click_into_them_too(self):
        self.game.click(BUTTONS["Instructions"])
        text = 20, 20, 560, 330
        opened = self.game.canvas()
        wait_until("the text", lambda: differs_in(self.game.canvas(), opened, text))
        self.desk.click(*self.game.middle(text))
        self.desk.move(1, 1)
        for key in ("Down", "Next", "End", "Up"):
            before = self.game.canvas()
            self.desk.key(key)
            wait_until(f"{key} to scroll", lambda: differs_in(self.game.canvas(), before, text))
        self.desk.key("space")
        wait_until("the opening form", self.game.shows_opening)


if __name__ == "__main__":
    unittest.main()
