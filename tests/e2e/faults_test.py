#!/usr/bin/python3
"""What can go wrong around the program: no sound or its server gone, no place for its settings, a clock that jumps, start
after start."""

import os
import pathlib
import signal
import socket
import time
import unittest
from unittest import mock

import numpy as np

from desk import Desk, stop, wait_until
from game import CUP, Game, dice_squares, settings, write_settings
from seen import OLD, start_afresh

LOUD = 2000  # of 32767: far above silence, below every recording


class SoundServer:
    """A PulseAudio server without a device, and an ear at its output."""

    def __init__(self, desk):
        self.address, self.heard = f"{desk.home}/sound", f"{desk.home}/heard"
        for left_behind in (self.address, self.heard):
            pathlib.Path(left_behind).unlink(missing_ok=True)
        self.process = desk.start(["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                                   "-L", "module-null-sink sink_name=out",
                                   "-L", f"module-native-protocol-unix socket={self.address} auth-anonymous=1"],
                                  quiet=True)
        wait_until("the sound server", self.answers)
        desk.start(["parec", "--server=unix:" + self.address, "--device=out.monitor", "--latency-msec=5",
                    "--format=s16le", self.heard], quiet=True)
        wait_until("the ear", lambda: os.path.exists(self.heard) and os.path.getsize(self.heard))

    def answers(self):
        with socket.socket(socket.AF_UNIX) as caller:
            return caller.connect_ex(self.address) == 0

    def is_loud(self):
        return np.fromfile(self.heard, "<i2").max(initial=0) > LOUD


class Faults(unittest.TestCase):
    def setUp(self):
        self.desk = self.enterContext(Desk())

    def throw(self, game, amid=lambda: None):
        game.bet(2, 0, 0)
        game.click(CUP)
        wait_until("the dice to be thrown", lambda: dice_squares(game.canvas()) is None)
        amid()
        game.wait_for_turn()

    def game_after(self, preparation, **variables):
        """The game, started by a shell that does something first."""
        self.enterContext(mock.patch.dict(os.environ, GAME=self.desk.launcher(preparation)))
        return Game(self.desk, **variables)

    def test_without_a_sound_device_it_plays_on_and_is_quiet(self):
        said = pathlib.Path(self.desk.home, "said")
        with self.game_after(f"exec 2>'{said}'", SDL_AUDIODRIVER="alsa", ALSA_CONFIG_PATH="/nowhere") as game:
            game.play()
            self.throw(game)
            game.process.terminate()
            self.assertEqual(game.ended(), 0, "the libraries leave a signal to the game")
        # The toolkit's own word on the session apart.
        self.assertEqual([line for line in said.read_text().splitlines() if not line.startswith("QStandardPaths")], [])

    def test_a_sound_server_freezes_dies_and_comes_back(self):
        server = SoundServer(self.desk)
        with Game(self.desk, SDL_AUDIODRIVER="pulseaudio", PULSE_SERVER="unix:" + server.address) as game:
            wait_until("the fanfare", server.is_loud)
            game.play()
            server.process.send_signal(signal.SIGSTOP)
            self.throw(game)
            stop(server.process)
            self.throw(game)
            server = SoundServer(self.desk)
            # A device that could not be had is not tried for at every sound, so it may take a few.
            for _ in range(4):
                self.throw(game)
                if server.is_loud():
                    break
            self.assertTrue(server.is_loud(), "no sound from the server that has come back")
            self.assertEqual(game.close(), 0)

    def test_without_a_folder_for_its_settings_it_plays_and_ends(self):
        pathlib.Path(self.desk.home, "config").write_text("a file in the folder's place")
        with Game(self.desk) as game:
            game.play()
            self.assertEqual(game.close(), 0)

    def test_on_a_full_disk_it_plays_and_ends_and_keeps_the_old_values(self):
        write_settings(self.desk, **OLD)
        with self.game_after("trap '' XFSZ; ulimit -f 0") as game:  # no file can take another byte
            start_afresh(game)
            self.assertEqual(game.close(), 0)
        self.assertEqual(settings(self.desk), OLD)

    def test_a_clock_set_back_and_a_sleep_of_the_machine_in_mid_throw(self):
        clock = pathlib.Path(self.desk.home, "clock")
        clock.write_text("+0")
        fake, = pathlib.Path("/usr/lib").glob("*/faketime/libfaketimeMT.so.1")
        # The clock on the wall alone: no one can set the one that counts from the machine's start.
        with Game(self.desk, LD_PRELOAD=str(fake), FAKETIME_TIMESTAMP_FILE=str(clock), FAKETIME_NO_CACHE="1",
                  DONT_FAKE_MONOTONIC="1", ASAN_OPTIONS="verify_asan_link_order=0") as game:
            game.play()
            self.throw(game, lambda: clock.write_text("-1h"))

            def sleep():
                game.process.send_signal(signal.SIGSTOP)
                time.sleep(4)
                game.process.send_signal(signal.SIGCONT)

            self.throw(game, sleep)
            self.assertEqual(game.close(), 0)

    def test_a_hundred_starts_and_ends_at_an_odd_scale(self):
        write_settings(self.desk, **OLD)
        for _ in range(100):
            with Game(self.desk, scale=1.25) as game:
                self.assertEqual(game.close(), 0)
        self.assertEqual(settings(self.desk), OLD)


if __name__ == "__main__":
    unittest.main()
