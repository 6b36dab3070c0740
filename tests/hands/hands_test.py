#!/usr/bin/python3
"""One list of hands on the simulated desktop and, with real mouse and keys, in the real window: the same must come of it.

    hands_test.py LIST PROGRAM SIMULATED...
"""

import difflib
import os
import shlex
import subprocess
import sys
import threading

from desk import Desk, wait_until
from game import Game, write_settings

BUTTON = {"left": 1, "middle": 2, "right": 3}
# By first letters, from the menu bar.
MENU = {"mnuNewGame": "gn", "mnuExit": "ge", "mnuOptions": "o", "mnuInstr": "hi", "Support": "hs", "mnuAbout": "ha"}
KEYS = {"Enter": "Return", "Space": "space", "Plus": "KP_Add", "Backspace": "BackSpace"}  # the others go by their own


class Told:
    """What the program tells, line by line."""

    def __init__(self, program):
        self.program = program
        self.lines = []
        self.arrived = 0
        self.unread = 0  # lines from here on have not been waited for
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.program.stdout:
            if line.startswith("#"):
                self.arrived += 1
            else:
                self.lines.append(line.rstrip("\n"))

    def until(self, text):
        """Lets the program's clock run until it tells this."""
        self.program.stdin.write(f"go {text}\n")
        self.program.stdin.flush()
        wait_until(f"'{text}'", lambda: self._find(text), patience=120)

    def _find(self, text):
        for at in range(self.unread, len(self.lines)):
            if self.lines[at].startswith(text):
                self.unread = at + 1
                return True
        return False


class Hands:
    def __init__(self, game, told):
        self.game, self.told, self.desk = game, told, game.desk

    def give(self, what, which, *place):
        arrived = self.told.arrived
        getattr(self, what)(which, *(float(value) for value in place))
        if what in ("press", "release", "key"):
            wait_until(f"{what} {which} to arrive", lambda: self.told.arrived > arrived)

    def press(self, which, x, y):
        self.desk.move(*self.game.at(x, y))
        self.desk.press(BUTTON[which])

    def release(self, which, x, y):
        self.desk.move(*self.game.at(x, y))
        self.desk.release(BUTTON[which])

    def move(self, _, x, y):
        self.desk.move(*self.game.at(x, y))

    def key(self, which):
        wait_until("the keyboard", self.game.window.has_focus)
        self.desk.key(KEYS.get(which, which))

    def menu(self, which):
        wait_until("the keyboard", self.game.window.has_focus)
        first, *rest = MENU[which]
        told = len(self.told.lines)
        self.desk.key("Alt_L", first)
        if not rest:
            return wait_until("the form", lambda: len(self.told.lines) > told)
        opened = wait_until("the menu", lambda: self.game.other_window(menu=True))
        self.desk.key(rest[0])
        wait_until("the menu to close", lambda: not opened.is_shown())

    def answer(self, which):
        self.game.answer(which[0])

    def until(self, text):
        self.told.until(text)

    def close(self, _):
        self.game.window.close()


class Witnessed(Game):
    """The program of a build for tests: it tells what it does."""

    pipes = {"stdin": subprocess.PIPE, "stdout": subprocess.PIPE, "text": True}


def play(lines):
    seed, stored, inputs = "0", {}, []
    for first, *rest in (shlex.split(line) if line.startswith("store") else line.split() for line in lines):
        if first == "seed":
            seed = rest[0]
        elif first == "store":
            stored[rest[0].rsplit("/", 1)[1]] = rest[1]
        elif first != "#":
            inputs.append(rest)
    with Desk() as desk:
        write_settings(desk, **stored)
        with Witnessed(desk, HANDS_SEED=seed) as game:
            told = Told(game.process)
            hands = Hands(game, told)
            for what, *rest in inputs:
                if what == "until":
                    hands.until(" ".join(rest))
                else:
                    hands.give(what, *rest)
            game.ended()
            wait_until("the last word", lambda: told.lines and told.lines[-1] == "ended")
            return told.lines


def main(path, program, *simulated):
    os.environ["GAME"] = program
    wanted = subprocess.run([*simulated, path], check=True, capture_output=True, text=True).stdout.splitlines()
    assert wanted[-1:] == ["ended"], "the list does not come to an end: " + "\n".join(wanted[-5:])
    with open(path) as lines:
        came = play([line for line in lines if line.strip()])
    for line in difflib.unified_diff(wanted, came, "on the simulated desktop", "in the window", lineterm=""):
        print(line)
    return 0 if came == wanted else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
