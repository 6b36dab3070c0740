#!/usr/bin/python3
"""The tour: one whole turn, played with real mouse events.

As a program: tour.py GAME FOLDER plays it on a virtual display and leaves numbered pictures in the folder.
"""

import os
import pathlib
import sys
from typing import NamedTuple

from PIL import Image

import desk as desks
from game import (CAPTIONS, CUP, CUP_FRAMES, MONEY_PICTURES, VALUE, Game, dice_squares, differs_in, payout_place, shows,
                  under_menu)

# A stake on every square, so that one wins whatever the dice show: denomination, slot in its pile, and where the
# corner is dropped. The last one hangs over two edges and is pushed inside.
STAKES = [(0, 12, (30, 30)), (2, 9, (40, 36)), (1, 11, (22, 44)), (2, 8, (60, 50)), (0, 11, (18, 56)),
          (1, 10, (60, 80))]
PUSHED = {5: (44, 64)}


class Stage(NamedTuple):
    name: str
    picture: Image.Image

    @property
    def canvas(self):
        return under_menu(self.picture)


def stake(square):
    return VALUE[STAKES[square][0]]


def payout(square, dice):
    """The denominations of the pieces that the bank lays onto a square, slot by slot."""
    winnings = dice.count(square) * stake(square)
    return [0] * (winnings // 10) + [1] * (winnings % 10 // 5) + [2] * (winnings % 5)


def last_payout(dice):
    """The last piece that the bank pays for these dice: its picture and its place."""
    square = max(dice)
    pieces = payout(square, dice)
    return MONEY_PICTURES[pieces[-1]], payout_place(square, len(pieces) - 1)


def tour(game):
    """Plays the turn, and tells at each stage what the window shows."""

    def stage(name, seen):
        """Waits for a picture in which `seen` is true."""

        def look():
            now = Stage(name, game.window.picture())
            return now if seen(now.canvas) else None

        return desks.wait_until(name, look)

    yield stage("opening", lambda _: game.shows_opening())
    game.play()
    yield stage("table", dice_squares)

    for square, (denomination, slot, offset) in enumerate(STAKES):
        game.bet(denomination, slot, square, offset, PUSHED.get(square))
    yield (bets := stage("bets", lambda _: True))

    game.click(CUP)
    for name in ("CupCentre", "CupRight", "CupLeft"):
        yield stage(name, lambda canvas, name=name: shows(canvas, name, CUP_FRAMES[name]))
    yield stage("dice", dice_squares)

    # The first caption is the first sign that the dice have come to rest for good.
    stage("first outcome", lambda canvas: any(differs_in(canvas, bets.canvas, place) for place in CAPTIONS))
    yield stage("settlement", lambda canvas: (dice := dice_squares(canvas)) and shows(canvas, *last_payout(dice)))
    yield stage("next-turn", game.has_turn_begun)


def main(program, folder):
    os.environ["GAME"] = program
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    number = 0
    with desks.Desk() as desk, Game(desk) as game:
        for name, picture in tour(game):
            if name.islower():
                number += 1
                picture.save(folder / f"{number}-{name}.png")
                print(f"tour: {folder / f'{number}-{name}.png'}", flush=True)
        return game.close()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: tour.py GAME FOLDER")
    sys.exit(main(*sys.argv[1:]))
