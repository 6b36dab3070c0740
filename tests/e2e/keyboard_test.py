#!/usr/bin/python3
"""The game played with keys: opening form, menu, question, and the table's one button."""

import os
import time
import unittest

from desk import Desk, wait_until
from game import BUTTONS, FRESH, GET_CHANGE, SQUARES, Game, differs_in, pile_place
from seen import opens_with


GROUND = (620, 150)  # where nothing stands


def is_ringed(canvas, place):
    """Whether a ring stands around the place: two dark lines between two light ones, on each side."""
    left, top, width, height = place
    across, down = left + width // 2, top + height // 2
    ring = [(0xFF,) * 3, (0,) * 3, (0,) * 3, (0xFF,) * 3]
    sides = ([(across, top - 4 + i) for i in range(4)], [(across, top + height + i) for i in range(4)],
             [(left - 4 + i, down) for i in range(4)], [(left + width + i, down) for i in range(4)])
    return all([canvas.getpixel(point) for point in side] == ring for side in sides)


class Keyboard(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())
        self.game = self.enterContext(Game(self.desk))
        self.desk.move(1, 1)
        wait_until("the keyboard", self.game.window.has_focus)

    def changed_since(self, canvas):
        now = self.game.canvas()
        return {name for name, place in BUTTONS.items() if differs_in(now, canvas, place)}

    def test_tab_goes_round_and_a_key_presses(self):
        order = ["Play Game", "Instructions", "Exit", "Options", "Play Game", "Options", "Play Game"]
        keys = [["Tab"]] * 4 + [["Shift_L", "Tab"], ["Tab"]]
        for before, after, pressed in zip(order, order[1:], keys):
            canvas = self.game.canvas()
            self.desk.key(*pressed)
            wait_until(f"the focus to go from {before} to {after}",
                       lambda: self.changed_since(canvas) == {before, after})
        self.desk.key("Return")
        wait_until("the table", lambda: opens_with(self.game.canvas(), FRESH))
        self.desk.key("Shift_L", "Tab")
        wait_until("the ring around Get Change", lambda: is_ringed(self.game.canvas(), GET_CHANGE))
        self.desk.key("space")
        self.desk.click(*self.game.at(*GROUND))  # which takes the ring away
        wait_until("the exchange", lambda: opens_with(self.game.canvas(), [12, 13, 15]))

    def test_a_ring_shows_where_the_keyboard_is_until_the_mouse_is_used(self):
        self.game.play()
        untouched = self.game.canvas()
        left, top = pile_place(0, 0)
        self.desk.key("Tab")
        wait_until("the ring around the notes", lambda: is_ringed(self.game.canvas(), (left, top, 155, 31)))
        self.desk.key("5")
        self.desk.key("Up")
        wait_until("the ring around a square", lambda: is_ringed(self.game.canvas(), (*SQUARES[2][:2], 100, 108)))
        self.desk.key("Escape")
        self.desk.click(*self.game.at(*GROUND))
        wait_until("the table as it was", lambda: self.game.canvas().tobytes() == untouched.tobytes())

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

    def test_a_key_that_is_held_since_before_answers_no_question(self):
        self.game.play()
        self.desk.key("Alt_L", "g")
        wait_until("the menu", lambda: self.game.other_window(menu=True))
        with self.desk.holding("Return"):
            asked = self.game.question()
            # Many times over.
            time.sleep(1.5)
            self.assertTrue(asked.is_shown())
        self.game.answer("Return")

    def test_the_instructions_are_read_by_keys_after_a_click_into_them_too(self):
        text = 20, 20, 560, 330
        opening = self.game.canvas()
        self.game.click(BUTTONS["Instructions"])
        wait_until("the text", lambda: differs_in(self.game.canvas(), opening, text))
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
