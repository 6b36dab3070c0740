#!/usr/bin/python3
"""What only the Windows program has to get right by itself: its message box, its modal menu, the end of the session,
the mouse taken away, its own view of the instructions."""

import unittest

from desk import Desk, wait_until
from game import FRESH, GET_CHANGE, TEXTS, Game, dice_frames, difference, dice_squares, table
from launch import launch
from seen import in_hand, in_shake, kept, minimised_and_back, opens_with, under_a_menu

VIEW = (0, 0, 600, 370)  # the text, without its scroll bar


class Windows(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())
        self.game = self.enterContext(Game(self.desk))
        self.desk.move(1, 1)

    def view(self):
        return self.game.canvas().crop(VIEW)

    def test_a_question_is_answered_and_not_dismissed(self):
        self.game.play()
        self.game.choose("g", "n")
        asked = self.game.question()
        self.desk.key("Escape")
        asked.close()
        self.game.window.close()
        # The box still answers, after all of them.
        self.assertTrue(asked.is_shown())
        self.game.answer("n")
        wait_until("the table where the box was", lambda: opens_with(self.game.canvas(), FRESH))

    def test_the_session_ends_with_a_question_open(self):
        self.game.play()
        self.game.bet(0, 12, 3)
        self.game.choose("g", "e")
        self.game.question()
        launch(self.desk).end_session()
        self.assertEqual(self.game.ended(), 0)
        self.assertEqual(kept(self.desk), [12, 12, 10])

    def test_a_menu_that_is_open_holds_up_a_throw_and_no_more(self):
        self.game.play()
        in_shake(self.game)
        opened = under_a_menu(self.game)
        self.desk.key("Escape")
        self.desk.key("Escape")
        wait_until("the menu to close", lambda: not opened.is_shown())
        wait_until("the dice", lambda: dice_squares(self.game.canvas()))
        self.game.wait_for_turn()

    def test_a_piece_in_the_hand_goes_home_where_the_mouse_is_taken_away(self):
        self.game.play()

        def open_menu(game):
            under_a_menu(game)
            self.desk.key("Escape")
            self.desk.key("Escape")

        def another_program(_):
            self.addCleanup(self.desk.take_keyboard().destroy)

        # At last another program has the keyboard.
        for taken in (open_menu, minimised_and_back, another_program):
            with self.subTest(taken.__name__):
                in_hand(self.game)
                taken(self.game)
                wait_until("the piece at home", lambda: opens_with(self.game.canvas(), FRESH))
                self.desk.release()

    def test_a_double_click_is_two_clicks(self):
        self.game.play()
        for _ in range(2):
            self.game.click(GET_CHANGE)
        wait_until("two exchanges", lambda: opens_with(self.game.canvas(), [11, 14, 20]))

    def test_the_instructions_scroll_and_can_be_copied(self):
        self.game.choose("h", "i")
        start = wait_until("the instructions", lambda: self.view() if self.view().getpixel((1, 1)) != (255, 255, 128)
                           else None)
        seen = {start.tobytes()}
        # Keys scroll it wherever the keyboard is: first on the text itself, in the end on the button.
        self.desk.key("Tab")
        for press in (lambda: self.desk.key("Next"), lambda: self.desk.key("Down"), lambda: self.desk.key("End"),
                      self.wheel_up):
            press()
            wait_until("another part of the text", lambda: self.view().tobytes() not in seen)
            seen.add(self.view().tobytes())
        self.desk.key("Tab")
        self.desk.key("Home")
        wait_until("the start", lambda: self.view().tobytes() == start.tobytes())
        self.desk.drag(self.game.at(0, 75), self.game.at(560, 76))
        self.desk.release()
        wait_until("a selection", lambda: self.view().tobytes() != start.tobytes())
        self.desk.key("Control_L", "c")
        wait_until("the words", lambda: "simple betting game" in self.desk.clipboard())

    def wheel_up(self):
        self.desk.move(*self.game.at(300, 200))
        self.desk.press(4)
        self.desk.release(4)

    def test_it_comes_up_on_a_dense_screen(self):
        with Game(self.desk, scale=2) as game:
            game.play()
            canvas = game.canvas()
            expected = table(FRESH, dice_frames(canvas, 2), scale=2)
            self.assertIsNone(difference(canvas, expected, TEXTS, scale=2))


if __name__ == "__main__":
    unittest.main()
