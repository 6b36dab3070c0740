"""A run of the game on a display: where everything stands, and what a player sees and does."""

import contextlib
import functools
import math
import pathlib
import tempfile

from PIL import Image, ImageChops

from desk import stop, wait_until
from launch import launch

PICTURES = pathlib.Path(__file__).parents[2] / "Graphics" / "pictures"
TITLE = "Thistle and Lantern"
CLIENT = (632, 406)

# Colours.
TABLE = (0xFF, 0xFF, 0x80)
CLOTH = (0x00, 0xC0, 0x00)
MAT = (0xC0, 0xFF, 0xC0)
INSTRUCTION = (0xFF, 0xE0, 0xC0)
HEADING = (0xE0, 0x88, 0x00)

# Places in pixels of the layout: left, top, width, height.
CLOTH_BOX = (2, 152, 628, 116)
SQUARES = [(6 + 104 * s, 156, 100, 100) for s in range(6)]
CAPTIONS = [(6 + 104 * s, 248, 100, 16) for s in range(6)]
HEADINGS = [(8, 272, 169, 25)] + [(8, top, 121, 25) for top in (296, 324, 352, 380)]
VALUES = [(128, 296 + 28 * i, 41, 17) for i in range(4)]
INSTRUCTIONS = [(420, 280, 208, 34), (420, 314, 208, 38)]
DICE = [(312, 40, 92, 105), (416, 8, 92, 105), (520, 24, 92, 105)]
CUP = (0, 24, 91, 117)
GET_CHANGE = (480, 376, 89, 25)
BUTTONS = {"Instructions": (8, 312, 150, 81), "Options": (163, 312, 150, 81), "Play Game": (318, 312, 150, 81),
           "Exit": (473, 312, 150, 81)}
TITLE_BOX = (144, 128, 468, 63)

MAT_PICTURES = ["MatHeart", "MatSpade", "MatDiamond", "MatClub", "MatThistle", "MatLantern"]
CUP_FRAMES = {"CupCentre": (64, 8), "CupLeft": (24, 8), "CupRight": (80, 8), "CupThrow": (168, 0)}
FACES = [0, 3, 4, 5, 2, 1]  # the square whose symbol lies uppermost in frame 4g, by g

# Denominations: £10 note, £5 note, £1 coin.
MONEY_PICTURES = ["TenPound", "FivePound", "OnePound"]
PILE_TOPS = [288, 322, 352]
VALUE = [10, 5, 1]
FRESH = [13, 12, 10]


def pile_place(denomination, slot):
    return 184 + 8 * slot, PILE_TOPS[denomination]


def payout_place(square, slot):
    return 8 + 104 * square + 8 * (slot % 5), 160 + 8 * (slot // 5)


@functools.lru_cache(None)
def carried(name, scale=1):
    """A picture as it is carried, in the scale asked for."""
    return Image.open(PICTURES / f"{name}{'@2x' if scale > 1 else ''}.png").convert("RGBA")


def shows(canvas, name, place, scale=1):
    """Whether every opaque pixel of the picture stands there, and stands there alone."""
    picture = carried(name, scale)
    left, top = (value * scale for value in place)
    there = canvas.crop((left, top, left + picture.width, top + picture.height))
    differs = ImageChops.difference(there, picture.convert("RGB")).convert("L").point(lambda v: 255 if v else 0)
    opaque = picture.getchannel("A").point(lambda v: 255 if v == 255 else 0)
    return ImageChops.multiply(differs, opaque).getbbox() is None


def device(value, scale):
    """The pixel of the screen nearest to a place of the layout."""
    return math.floor(value * scale + 0.5)


def box(canvas, place, scale=1):
    left, top, width, height = (device(value, scale) for value in place)
    return canvas.crop((left, top, left + width, top + height))


def differs_in(canvas, other, place, scale=1):
    return box(canvas, place, scale).tobytes() != box(other, place, scale).tobytes()


def dice_squares(canvas):
    """The squares that the three dice show, or None while one is away or on its way."""
    frames = dice_frames(canvas)
    return None if None in frames else [FACES[frame // 4] for frame in frames]


def dice_frames(canvas, scale=1):
    """The frame of each die at rest, or None where there is none."""
    return [next((f for f in range(0, 24, 4) if shows(canvas, f"Anidice{f:02}", place[:2], scale)), None)
            for place in DICE]


def table(counts, frames, pieces=(), instructions=1, cup=True, scale=1):
    """The table painted from the places above: piles of `counts`, dice in `frames`, and further pictures, each a name
    and its place, in front. Without any text or button."""
    canvas = Image.new("RGBA", [side * scale for side in CLIENT], TABLE)

    def fill(place, colour):
        left, top, width, height = (value * scale for value in place)
        canvas.paste(colour, (left, top, left + width, top + height))

    def put(name, place):
        canvas.alpha_composite(carried(name, scale), tuple(max(0, value * scale) for value in place),
                               tuple(max(0, -value * scale) for value in place))

    fill(CLOTH_BOX, CLOTH)
    for place, frame in zip(DICE, frames):
        if frame is not None:
            put(f"Anidice{frame:02}", place[:2])
    if cup:
        put("CupStanding", CUP[:2])
    for name, square, caption in zip(MAT_PICTURES, SQUARES, CAPTIONS):
        put(name, square[:2])
        fill(caption, MAT)
    for place in INSTRUCTIONS[:instructions]:
        fill(place, INSTRUCTION)
    for denomination, count in enumerate(counts):
        for slot in range(min(count, 20)):
            put(MONEY_PICTURES[denomination], pile_place(denomination, slot))
    for name, place in pieces:
        put(name, place)
    return canvas.convert("RGB")


def difference(canvas, expected, without=(), scale=1):
    """Where two pictures of the table differ, apart from the boxes in `without`; None where nowhere. Half-transparent
    edges may be rounded by one step."""
    differs = ImageChops.difference(canvas, expected)
    for left, top, width, height in without:
        differs.paste(0, tuple(value * scale for value in (left, top, left + width, top + height)))
    return differs.point(lambda v: 255 if v > 1 else 0).getbbox()


MONEY_TEXTS = HEADINGS + VALUES
TEXTS = MONEY_TEXTS + INSTRUCTIONS[:1] + [GET_CHANGE]  # of a turn that opens


def under_menu(picture, scale=1):
    return picture.crop((0, picture.height - device(CLIENT[1], scale), picture.width, picture.height))


class Game:
    """One run of the program. Use it in a `with`: it is ended where it has not ended by itself."""

    pipes = None  # what its standard input and output are tied to, where not to this program's

    def __init__(self, desk, scale=1, **variables):
        self.desk = desk
        self.scale = scale
        self.variables = variables

    def __enter__(self):
        self.process = launch(self.desk).start(self.scale, self.pipes, **self.variables)
        try:
            self.window = wait_until("the game's window", self._find_window)
            wait_until("the opening form", self.shows_opening)
        except BaseException as failure:
            self.__exit__(type(failure))
            raise
        return self

    def __exit__(self, failure=None, *_):
        if failure:
            # Unless it is the screen that has failed.
            with contextlib.suppress(Exception):
                self._keep_picture(failure)
        stop(self.process)

    def _keep_picture(self, failure):
        picture = pathlib.Path(tempfile.mkdtemp(prefix="failed-"), "screen.png")
        self.desk.picture(0, 0, *self.desk.size).save(picture)
        print(f"{failure.__name__}: what the screen showed is in {picture}", flush=True)

    def _find_window(self):
        assert self.process.poll() is None, f"the game ended with status {self.process.returncode}"
        return next((w for w in self.windows() if not w.is_menu() and w.title() == TITLE), None)

    def windows(self):
        return self.desk.windows(self.process.pid)

    def other_window(self, menu):
        """The menu or the question box that is open, or None."""
        return next((w for w in self.windows() if w.id != self.window.id and w.is_menu() == menu), None)

    def question(self):
        found = wait_until("a question", lambda: self.other_window(menu=False))
        assert found.title() == TITLE
        if self.desk.window_manager:
            wait_until("the question to have the keyboard", found.has_focus)
        return found

    def answer(self, key):
        """Answers the question on the screen by a key."""
        asked = self.question()
        self.desk.key(key)
        wait_until("the question to go", lambda: not asked.is_shown())

    def choose(self, menu, entry):
        """Opens a menu and chooses from it, by first letters."""
        wait_until("the keyboard", self.window.has_focus)
        self.desk.key("Alt_L", menu)
        opened = wait_until("the menu", lambda: self.other_window(menu=True))
        self.desk.key(entry)
        wait_until("the menu to close", lambda: not opened.is_shown())

    # --- Seeing

    def corner(self):
        """The pixel of the screen at which the area under the menu bar begins, in the normal state."""
        left, top, _, height = self.window.rect()
        return left, top + height - device(CLIENT[1], self.scale)

    def canvas(self):
        """What the window shows under its menu bar, in the normal state."""
        return under_menu(self.window.picture(), self.scale)

    def shows_opening(self):
        title = box(self.canvas(), TITLE_BOX, self.scale)
        return HEADING in [colour for _, colour in title.getcolors(title.width * title.height)]

    def can_bet(self, canvas=None):
        """The first instruction shows exactly while a turn is open. On this picture, or now."""
        return box(canvas or self.canvas(), INSTRUCTIONS[0], self.scale).getpixel((1, 1)) == INSTRUCTION

    def has_turn_begun(self, canvas=None):
        """Down to the button, which may be a window of its own and follow a moment later: all of it has one edge."""
        canvas = canvas or self.canvas()
        edge = box(canvas, (*GET_CHANGE[:3], 1), self.scale).getcolors(1)
        return self.can_bet(canvas) and bool(edge) and edge[0][1] != TABLE

    # --- Doing

    def at(self, x, y):
        """A point of the layout on the screen."""
        left, top = self.corner()
        return left + device(x, self.scale), top + device(y, self.scale)

    def middle(self, place):
        left, top, width, height = place
        return self.at(left + width // 2, top + height // 2)

    def click(self, place):
        self.desk.click(*self.middle(place))

    def play(self):
        """From the opening form to the table, where no earlier money is offered."""
        self.click(BUTTONS["Play Game"])
        self.wait_for_turn()

    def wait_for_turn(self):
        wait_until("an open turn", self.has_turn_begun)

    def grip(self, place):
        """Where on the screen to take hold of a piece: the strip that its neighbour on the right leaves free."""
        return self.at(place[0] + 4, place[1] + 10)

    def drag(self, start, end):
        """Carries the piece at `start` so far that its corner comes to `end`, and keeps it in the hand."""
        self.desk.drag(self.grip(start), self.grip(end))

    def bet(self, denomination, slot, square, offset=(30, 40), seat=None):
        """Drags a piece of a pile onto a square, dropping its corner at `offset`. Returns where it must come to lie:
        there, or at `seat`."""
        left, top, _, _ = SQUARES[square]
        before = self.canvas()
        self.drag(pile_place(denomination, slot), (left + offset[0], top + offset[1]))
        self.desk.release()
        offset = seat or offset
        name, place = MONEY_PICTURES[denomination], (left + offset[0], top + offset[1])
        wait_until(f"the bet on square {square}", lambda: shows(now := self.canvas(), name, place)
                   and differs_in(now, before, CAPTIONS[square]))
        return name, place

    # --- Ending

    def close(self):
        self.window.close()
        return self.ended()

    def ended(self):
        """Waits for the end and returns the exit status."""
        return self.process.wait(timeout=30)


def settings(desk):
    """The stored values as texts, by key."""
    return launch(desk).settings()


def write_settings(desk, **values):
    launch(desk).write_settings(values)
