#!/usr/bin/python3
"""A sound server that goes in the middle of a game, freezes, and comes back."""

import array
import os
import signal
import socket
import subprocess
import unittest

from desk import Desk, stop, wait_until
from game import CUP, Game, dice_squares

LOUD = 2000  # of 32767: far above silence, below every recording


class Server:
    """A PulseAudio server without a device, and an ear at its output."""

    def __init__(self, desk, take):
        self.address = f"{desk.home}/sound"
        self.heard = f"{desk.home}/heard-{take}"
        server = ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                  "-L", "module-null-sink sink_name=out",
                  "-L", f"module-native-protocol-unix socket={self.address} auth-anonymous=1"]
        self.server = desk.start(server, quiet=True)
        wait_until("the sound server", self.answers)
        with open(self.heard, "wb") as heard:
            self.ear = subprocess.Popen(["parec", "-d", "out.monitor", "--latency-msec=5", "--format=s16le",
                                         "--rate=44100", "--channels=1"], stdout=heard, stderr=subprocess.DEVNULL,
                                        env={**os.environ, "HOME": desk.home, "PULSE_SERVER": "unix:" + self.address})
        wait_until("the ear", lambda: os.path.getsize(self.heard) > 0)

    def answers(self):
        with socket.socket(socket.AF_UNIX) as caller:
            return caller.connect_ex(self.address) == 0

    def loudest(self):
        with open(self.heard, "rb") as heard:
            samples = array.array("h", heard.read()[:os.path.getsize(self.heard) // 2 * 2])
        return max(map(abs, samples), default=0)

    def stop(self):
        stop(self.ear)
        stop(self.server)
        if os.path.exists(self.address):
            os.unlink(self.address)


class SoundServer(unittest.TestCase):
    def throw(self, game):
        game.bet(2, self.coins, 0)
        self.coins -= 1
        game.click(CUP)
        wait_until("the dice to be thrown", lambda: dice_squares(game.canvas()) is None)
        game.wait_for_turn()

    def test_the_game_goes_on_and_sound_comes_back(self):
        self.coins = 9
        with Desk() as desk:
            server = Server(desk, take=1)
            self.addCleanup(server.stop)
            sound = {"SDL_AUDIODRIVER": "pulseaudio", "PULSE_SERVER": "unix:" + server.address}
            with Game(desk, **sound) as game:
                wait_until("the fanfare", lambda: server.loudest() > LOUD)
                game.play()
                server.server.send_signal(signal.SIGSTOP)
                self.throw(game)
                server.stop()
                self.throw(game)
                back = Server(desk, take=2)
                self.addCleanup(back.stop)
                # A device that could not be had is not tried for at every sound, so it may take a few.
                for _ in range(4):
                    self.throw(game)
                    if back.loudest() > LOUD:
                        break
                self.assertGreater(back.loudest(), LOUD, "no sound from the server that has come back")
                self.assertEqual(game.close(), 0)


if __name__ == "__main__":
    unittest.main()
