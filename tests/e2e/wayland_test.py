#!/usr/bin/python3
"""In a Wayland session that has X11 beside it: the window is Wayland's own, sharp at every density, and its run is
kept."""

import os
import pathlib
import unittest

from PIL import Image

from desk import Desk, wait_until
from game import TABLE, settings, shows, write_settings
from seen import OLD

EMBLEM = ("ThistleAndLantern128", (16, 24))


def started(desk, scale):
    """A compositor without a screen, and the game in its session."""
    compositor = desk.start(["weston", "--backend=headless-backend.so", "--socket=wayland-test", "--width=1280",
                             "--height=960", f"--scale={scale}", "--use-pixman", "--debug", "--idle-time=0"], quiet=True)
    wait_until("the compositor", lambda: os.path.exists(desk.home + "/wayland-test"))
    return compositor, desk.start([os.environ["GAME"]], quiet=True, WAYLAND_DISPLAY="wayland-test")


class Wayland(unittest.TestCase):
    def shot(self, desk):
        """The compositor's own picture of its screen."""
        folder = pathlib.Path(desk.home, "shots")
        folder.mkdir(exist_ok=True)
        desk.start(["sh", "-c", f"cd '{folder}' && rm -f *.png && weston-screenshooter"], quiet=True,
                   WAYLAND_DISPLAY="wayland-test").wait()
        found = list(folder.glob("*.png"))
        return Image.open(found[0]).convert("RGB") if found else None

    def shows_emblem(self, desk, scale):
        screen = self.shot(desk)
        if not screen:
            return False
        ground = Image.new("L", screen.size)
        ground.putdata([255 if pixel == TABLE else 0 for pixel in screen.getdata()])
        corner = ground.getbbox()
        return corner and shows(screen.crop((*corner[:2], corner[0] + 632 * scale, corner[1] + 406 * scale)), *EMBLEM, scale)

    def test_is_native_and_sharp_and_leaves_the_stored_place_alone(self):
        for scale in (1, 2):
            with self.subTest(scale=scale), Desk() as desk:
                write_settings(desk, **OLD)
                _, game = started(desk, scale)
                wait_until("the emblem, pixel by pixel", lambda: self.shows_emblem(desk, scale))
                self.assertEqual(desk.windows(game.pid), [], "nothing on the X11 beside it")
                game.terminate()
                self.assertEqual(game.wait(timeout=60), 0)
                self.assertEqual(settings(desk), OLD)

    def test_a_compositor_that_goes_takes_no_money_with_it(self):
        with Desk() as desk:
            compositor, game = started(desk, 1)
            wait_until("the emblem", lambda: self.shows_emblem(desk, 1))
            compositor.kill()
            game.wait(timeout=60)
            self.assertEqual(settings(desk).get("SoundOn"), "True")


if __name__ == "__main__":
    unittest.main()
