#!/usr/bin/python3
"""The painted table against the tables of places and colours, at several densities of the screen."""

import unittest

from desk import Desk, wait_until
from game import (CAPTIONS, CLOTH, CLOTH_BOX, FRESH, INSTRUCTION, INSTRUCTIONS, MAT, MONEY_TEXTS, SQUARES, TEXTS, Game,
                  box, device, dice_frames, differs_in, difference, is_blank, pile_place, table)
from PIL import Image


def edges(canvas, colour, row):
    """Where stretches of a colour begin and end along a row of pixels."""
    line = [canvas.getpixel((x, row)) == colour for x in range(canvas.width)]
    return [x for x in range(1, canvas.width) if line[x] != line[x - 1]]


class Table(unittest.TestCase):
    def painted(self, scale):
        with Desk(size=(1440, 1000)) as desk, Game(desk, scale) as game:
            game.play()
            return game.canvas()

    def test_every_pixel(self):
        for scale in 1, 2:
            with self.subTest(scale):
                canvas = self.painted(scale)
                frames = dice_frames(canvas, scale)
                self.assertNotIn(None, frames, "a die at rest on a face, from the first")
                self.assertIsNone(difference(canvas, table(FRESH, frames, scale=scale), TEXTS, scale))
                for place in TEXTS:
                    self.assertGreater(len(box(canvas, place, scale).getcolors(100000)), 4, f"no text at {place}")
                left, top, width, height = INSTRUCTIONS[0]
                for edge in ((left, top, width, 1), (left, top + height - 1, width, 1), (left, top, 2, height)):
                    self.assertTrue(is_blank(canvas, edge, INSTRUCTION, scale))

    def test_between_scales_no_edge_is_mixed_or_off(self):
        for scale in 1.25, 1.5:
            with self.subTest(scale):
                canvas = self.painted(scale)
                mats = [x for left, _, width, _ in SQUARES for x in (left, left + width)]
                cloth = [CLOTH_BOX[0], *mats, CLOTH_BOX[0] + CLOTH_BOX[2]]
                row = device(SQUARES[0][1] + 97, scale)
                self.assertEqual(edges(canvas, CLOTH, row), [device(x, scale) for x in cloth])
                column = canvas.transpose(Image.Transpose.TRANSPOSE)
                x = device(SQUARES[0][0], scale) + 1
                self.assertEqual(edges(column, CLOTH, x), [device(y, scale) for y in (152, 156, 264, 268)])
                self.assertEqual(edges(column, MAT, x), [device(y, scale) for y in (156, 264)])

    def test_drop_at_scale_1_5_lies_at_the_nearest_pixel(self):
        with Desk(size=(1440, 1000)) as desk, Game(desk, 1.5) as game:
            game.play()
            before = game.canvas()
            home, aim = pile_place(2, 9), (SQUARES[1][0] + 40, SQUARES[1][1] + 20)
            # One pixel of the screen is two thirds of the layout's: nearer to the next.
            desk.drag(game.grip(home), [value + 1 for value in game.grip(aim)])
            desk.release()
            wait_until("the stake", lambda: differs_in(game.canvas(), before, CAPTIONS[1], 1.5))
            middle = (6, 6, 24, 24)
            seat = box(game.canvas(), (aim[0] + 1, aim[1] + 1, 20, 20), 1.5).crop(middle)
            self.assertEqual(seat.tobytes(), box(before, (*home, 20, 20), 1.5).crop(middle).tobytes())

    def test_piece_in_the_hand_leaves_no_trail(self):
        with Desk() as desk, Game(desk) as game:
            game.play()
            frames = dice_frames(game.canvas())
            arrow = desk.pointer_shape()
            home = pile_place(0, 12)
            # From its pile over cloth and table, half out of the window, and onto a square, where alone it may drop.
            desk.move(*game.grip(home))
            desk.press()
            for place in ((98, 120), (350, 330), (-30, 200), (223, 190)):
                desk.move(*game.grip(place))
                painted = table([12, *FRESH[1:]], frames, [("TenPound", place)])
                wait_until(f"the piece at {place}",
                           lambda: difference(game.canvas(), painted, MONEY_TEXTS + INSTRUCTIONS[:1]) is None)
                may_drop = place == (223, 190)
                wait_until("the right pointer", lambda: (desk.pointer_shape() == arrow) == may_drop)
            desk.move(*game.grip((300, 20)))
            desk.release()
            wait_until("the piece at home", lambda: difference(game.canvas(), table(FRESH, frames), TEXTS) is None)
            wait_until("the arrow", lambda: desk.pointer_shape() == arrow)


if __name__ == "__main__":
    unittest.main()
