#!/usr/bin/python3
"""The animated picture of a turn: animate.py GAME FILE.png plays on a virtual display until a turn wins, and keeps that
turn's pictures as they followed one another in the window."""

import os
import sys
import time

from PIL import Image

from desk import Desk
from game import CUP, SQUARES, Game, dice_squares, pile_place

STEP = 0.1  # seconds from picture to picture
LAST = 2.5  # seconds for which the last one stands
BETS = [(0, 12, 0), (1, 11, 4), (2, 9, 5)]  # denomination, slot in its pile, square


class Film:
    def __init__(self, game):
        self.game = game
        self.frames = []  # pictures and for how many seconds they stand
        self.next = time.monotonic()

    def shoot(self):
        """One picture, when its moment has come. The same one again only stands longer."""
        time.sleep(max(0, self.next - time.monotonic()))
        self.next = max(self.next + STEP, time.monotonic())
        picture = self.game.window.picture()
        if self.frames and self.frames[-1][0].tobytes() == picture.tobytes():
            self.frames[-1][1] += STEP
        else:
            self.frames.append([picture, STEP])

    def drag(self, denomination, slot, square):
        left, top, _, _ = SQUARES[square]
        start = self.game.grip(pile_place(denomination, slot))
        end = self.game.grip((left + 22, top + 40))
        self.game.desk.move(*start)
        self.game.desk.press()
        for step in range(1, 9):
            self.game.desk.move(*(round(a + (b - a) * step / 8) for a, b in zip(start, end)))
            self.shoot()
        self.game.desk.release()
        self.shoot()

    def turn(self):
        """Plays one. The squares that the dice show."""
        self.shoot()
        for bet in BETS:
            self.drag(*bet)
        self.game.click(CUP)
        self.game.desk.move(*self.game.at(300, 395))
        while self.game.can_bet():
            self.shoot()
        while not self.game.can_bet():
            self.shoot()
        return dice_squares(self.frames[-1][0].crop((0, self.frames[-1][0].height - 406, 632, 10000)))

    def save(self, path):
        self.frames[-1][1] = LAST
        frames = [picture for picture, _ in self.frames]
        frames[0].save(path, save_all=True, append_images=frames[1:], loop=0,
                       duration=[round(1000 * seconds) for _, seconds in self.frames], optimize=True)


def main(program, path):
    os.environ["GAME"] = program
    for _ in range(20):
        with Desk() as desk, Game(desk) as game:
            game.play()
            film = Film(game)
            dice = film.turn()
            won = {square for _, _, square in BETS} & set(dice or [])
            if len(won) == 1:
                film.save(path)
                print(f"{path}: {len(film.frames)} pictures, {os.path.getsize(path) / 1e6:.2f} MB")
                return 0
    sys.exit("no turn has won")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: animate.py GAME FILE.png")
    sys.exit(main(*sys.argv[1:]))
