#!/usr/bin/python3
"""A whole turn in the real window, pixel by pixel, down to the money in the store."""

import unittest

from desk import Desk
from game import (CAPTIONS, CUP_FRAMES, FRESH, INSTRUCTIONS, MONEY_PICTURES, MONEY_TEXTS, SQUARES, Game, dice_frames,
                  dice_squares, difference, payout_place, table)
from seen import kept, opens_with
from tour import PUSHED, STAKES, payout, tour


class Tour(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.stages = {}
        with Desk() as desk, Game(desk) as game:
            for stage in tour(game):
                cls.stages[stage.name] = stage.canvas
            cls.status = game.close()
            cls.kept = kept(desk)
        cls.dice = dice_squares(cls.stages["settlement"])
        cls.staked = [(MONEY_PICTURES[piece], (SQUARES[s][0] + at[0], SQUARES[s][1] + at[1]))
                      for s, (piece, _, drop) in enumerate(STAKES) for at in [PUSHED.get(s, drop)]]
        cls.left = [count - sum(piece == d for piece, _, _ in STAKES) for d, count in enumerate(FRESH)]

    def assert_shows(self, stage, pieces, without, **what):
        """The picture of the stage is the painted table with these pieces, apart from some boxes."""
        frames = dice_frames(self.stages[stage])
        painted = table(self.left, frames, pieces, **what)
        self.assertIsNone(difference(self.stages[stage], painted, without), f"{stage}, dice {frames}")

    def test_a_piece_dropped_on_a_square_lies_there_and_has_left_the_pile(self):
        self.assert_shows("bets", self.staked, MONEY_TEXTS + INSTRUCTIONS + CAPTIONS, instructions=2)

    def test_the_shaken_cup_shows_alone_and_the_dice_are_away(self):
        for name in self.stages.keys() & CUP_FRAMES:
            cup = name, CUP_FRAMES[name]
            self.assert_shows(name, [*self.staked, cup], MONEY_TEXTS + CAPTIONS, instructions=0, cup=False)
            self.assertEqual(dice_frames(self.stages[name]), [None] * 3)

    def test_squares_are_settled_by_the_dice(self):
        # A losing stake has gone. Under the payouts lies a stake that wins, and behind the last winner wait the rest.
        pieces = [self.staked[s] for s in range(6) if s in self.dice or s > max(self.dice)]
        for s in range(6):
            pieces += [(MONEY_PICTURES[d], payout_place(s, slot)) for slot, d in enumerate(payout(s, self.dice))]
        self.assert_shows("settlement", pieces, MONEY_TEXTS + CAPTIONS, instructions=0)

    def test_the_next_turn_has_the_money_that_the_dice_say(self):
        money = list(self.left)
        for s, (piece, _, _) in enumerate(STAKES):
            pieces = payout(s, self.dice)
            money[piece] += bool(pieces)
            for paid in pieces:
                money[paid] += 1
        canvas = self.stages["next-turn"]
        self.assertTrue(opens_with(canvas, money), "a clean mat, and the piles with what was won")
        self.assertEqual(dice_squares(canvas), self.dice)
        self.assertEqual(self.kept, money)
        self.assertEqual(self.status, 0)


if __name__ == "__main__":
    unittest.main()
