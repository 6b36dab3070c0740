#!/usr/bin/python3
"""What can go wrong around the program: killed at any moment, no sound device, no place for its settings."""

import os
import pathlib
import random
import signal
import time
import unittest

from desk import Desk, wait_until
from game import CUP, Game, dice_squares, settings, settings_file, write_settings

KILLS = 12
STARTS = 100

OLD = {"MainLeft": "1500", "MainTop": "900", "SoundOn": "False", "Stash0": "7", "Stash1": "3", "Stash2": "1"}
NEW = {"Stash0": "13", "Stash1": "12", "Stash2": "10"}


class Faults(unittest.TestCase):
    def throw(self, game):
        game.bet(2, 9, 0)
        game.click(CUP)
        wait_until("the dice to be thrown", lambda: dice_squares(game.canvas()) is None)
        game.wait_for_turn()

    def launch(self, desk, preparation):
        """Has the game started by a shell that does something first."""
        program = os.environ["GAME"]
        self.addCleanup(os.environ.update, GAME=program)
        launcher = pathlib.Path(desk.home) / "launch"
        launcher.write_text(f"#!/bin/sh\n{preparation}\nexec '{program}'\n")
        launcher.chmod(0o755)
        os.environ["GAME"] = str(launcher)

    def test_killed_while_it_ends_it_leaves_the_old_values_or_the_new_ones(self):
        seed = random.randrange(1 << 32)
        chance = random.Random(seed)
        seen = set()
        with Desk() as desk:
            for kill in range(KILLS):
                write_settings(desk, **OLD, Other="kept")
                with Game(desk) as game:
                    game.choose("g", "n")
                    game.answer("n")  # the earlier money is refused: 13, 12 and 10 pieces are dealt
                    game.wait_for_turn()
                    if kill:  # the first is left to end by itself
                        game.window.close()
                        time.sleep(chance.uniform(0, 0.02))
                        game.process.kill()
                        game.process.wait()
                    else:
                        self.assertEqual(game.close(), 0)
                stored = settings(desk)
                self.assertEqual(stored.pop("Other"), "kept", f"seed {seed}")
                # The window stood where it was told to stand, so only the counts tell old from new.
                counts = {key: stored[key] for key in NEW}
                self.assertIn(counts, ({key: OLD[key] for key in NEW}, NEW), f"seed {seed}")
                self.assertEqual(set(stored), set(OLD), f"seed {seed}")
                seen.add(counts["Stash0"])
        self.assertIn("13", seen)

    def test_without_a_sound_device_it_plays_on_and_is_quiet(self):
        with Desk() as desk:
            said = pathlib.Path(desk.home) / "said"
            self.launch(desk, f"exec 2>'{said}'")
            with Game(desk, SDL_AUDIODRIVER="alsa", ALSA_CONFIG_PATH="/nowhere") as game:
                game.play()
                self.throw(game)
                self.assertEqual(game.close(), 0)
            # The toolkit's own word on the session apart.
            words = [line for line in said.read_text().splitlines() if not line.startswith("QStandardPaths")]
            self.assertEqual(words, [])

    def test_without_a_place_for_its_settings_it_plays_and_ends(self):
        def a_file_for_the_folder(desk):
            (pathlib.Path(desk.home) / "config").write_text("")

        def a_folder_for_the_file(desk):
            settings_file(desk).mkdir(parents=True)

        def rubbish(desk):
            settings_file(desk).parent.mkdir(parents=True)
            settings_file(desk).write_bytes(bytes(range(256)) * 40)

        for spoil in (a_file_for_the_folder, a_folder_for_the_file, rubbish):
            with self.subTest(spoil.__name__), Desk() as desk:
                spoil(desk)
                with Game(desk) as game:
                    game.play()
                    self.throw(game)
                    self.assertEqual(game.close(), 0)

    def test_on_a_full_disk_it_plays_and_ends_and_keeps_the_old_values(self):
        with Desk() as desk:
            write_settings(desk, **OLD)
            self.launch(desk, "trap '' XFSZ; ulimit -f 0")  # no file can take another byte
            with Game(desk) as game:
                game.choose("g", "n")
                game.answer("n")
                game.wait_for_turn()
                self.throw(game)
                self.assertEqual(game.close(), 0)
            self.assertEqual(settings(desk), OLD)

    def test_it_ends_by_a_signal_like_any_program(self):
        with Desk() as desk:
            write_settings(desk, **OLD)
            with Game(desk) as game:
                game.process.send_signal(signal.SIGTERM)
                self.assertEqual(game.ended(), -signal.SIGTERM)
            self.assertEqual(settings(desk), OLD)

    def test_a_hundred_starts_and_ends(self):
        with Desk() as desk:
            write_settings(desk, **OLD)
            for _ in range(STARTS):
                with Game(desk) as game:
                    self.assertEqual(game.close(), 0)
            self.assertEqual(settings(desk), OLD)


if __name__ == "__main__":
    unittest.main()
