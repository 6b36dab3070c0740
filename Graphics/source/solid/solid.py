"""Renders the solid pictures of the table: the tumbling die and the leather cup."""

import math
import pathlib
import subprocess
import tempfile

import numpy as np
from PIL import Image

HERE = pathlib.Path(__file__).resolve().parent
SYMBOLS = HERE.parent / "symbols"
GROUND = (255, 255, 128)

# Each solid is rendered this many times its size on the table, then reduced.
BODY_FINENESS = 8
SHADOW_FINENESS = 2

# Short of black, so that the deepest shadow still shows the table between its dots.
SHADOW_DEPTH = 0.68

FACES = ("heart", "club", "thistle", "lantern", "diamond", "spade")
STEPS = 24
DIE_EDGE_ROUNDING = 0.27
SYMBOL_PIXELS = 512

# Lean to the right and turn towards the player in degrees; the place of the cup's middle in the
# picture; whether a die shows in its mouth.
CUPS = {
    "CupStanding": (0, 0, (57, 54), False),
    "CupCentre": (0, 0, (44.5, 54), False),
    "CupLeft": (-27, 0, (50, 62), False),
    "CupRight": (27, 0, (61, 62), False),
    "CupThrow": (98, 24, (59, 58), True),
}


def roll(step_kind, degrees):
    """The turn of a die rolling towards the player (0) or to the right (1)."""
    c, s = np.cos(np.radians(degrees)), np.sin(np.radians(degrees))
    if step_kind == 0:
        return np.array([[1, 0, 0], [0, c, s], [0, -s, c]])
    return np.array([[c, s, 0], [-s, c, 0], [0, 0, 1]])


def tumble():
    """The die's turn at each step of the loop, and its turn when each face is up."""
    poses, rests = [], []
    standing = np.identity(3)
    for face in range(len(FACES)):
        rests.append(standing)
        for quarter in range(4):
            poses.append(roll(face % 2, quarter * 22.5) @ standing)
        standing = np.rint(roll(face % 2, 90) @ standing)
    if not np.array_equal(standing, np.identity(3)):
        raise ValueError("the tumble does not end as it began")
    tops = {tuple(rest.T @ (0, 1, 0)) for rest in rests}
    if len(tops) != len(FACES):
        raise ValueError("the tumble does not bring up every face once")
    return poses, rests


def lift(step):
    """How high the centre of a die two wide stands while it rolls over its edge."""
    angle = np.radians(step % 4 * 22.5)
    core = 1 - DIE_EDGE_ROUNDING
    return core * (np.cos(angle) + np.sin(angle)) + DIE_EDGE_ROUNDING


def pov_transform(matrix):
    # The renderer multiplies row vectors, hence the transpose.
    cells = ", ".join(f"{cell:.9f}" for cell in np.append(matrix.T.ravel(), (0, 0, 0)))
    return f"transform {{ matrix <{cells}> }}"


def write_tumble(path):
    poses, rests = tumble()
    lines = [f"#declare Round = {DIE_EDGE_ROUNDING};"]
    lines += [f"#declare {name} = array[{STEPS}];" for name in ("Pose", "Lift")]
    lines += [f"#declare {name} = array[{len(FACES)}];" for name in ("Print", "FaceName")]
    for step, pose in enumerate(poses):
        lines.append(f"#declare Pose[{step}] = {pov_transform(pose)}")
        lines.append(f"#declare Lift[{step}] = {lift(step):.9f};")
    for face, rest in enumerate(rests):
        # Printed as seen with that face up, then turned back with the die.
        lines.append(f"#declare Print[{face}] = {pov_transform(rest.T)}")
        lines.append(f'#declare FaceName[{face}] = "{FACES[face]}";')
    path.write_text("\n".join(lines) + "\n")


def draw_symbols(folder):
    for face in FACES:
        subprocess.run(
            ["rsvg-convert", "-w", str(SYMBOL_PIXELS), "-h", str(SYMBOL_PIXELS),
             "-o", folder / f"{face}.png", SYMBOLS / f"{face}.svg"],
            check=True)


def render(scene, size, shadow, work, output, extra=()):
    fineness = SHADOW_FINENESS if shadow else BODY_FINENESS
    command = [
        "povray", str(HERE / scene), f"+L{HERE}", f"+L{work}", f"+O{work / output}",
        f"+W{size[0] * fineness}", f"+H{size[1] * fineness}",
        "+FN8", "-UA" if shadow else "+UA", "-A", "-D", "+WT2",
        f"Declare=Pass={int(shadow)}", f"Declare=Width={size[0]}",
        f"Declare=Height={size[1]}", *extra]
    if shadow:
        command.append("File_Gamma=1.0")
    done = subprocess.run(command, cwd=work, capture_output=True, text=True)
    if done.returncode != 0:
        raise RuntimeError(f"{scene} was not rendered:\n{done.stderr[-2000:]}")


def threshold_map(order=3):
    """Ordered thresholds in (0, 1), the same at the same place of every picture."""
    cells = np.zeros((1, 1))
    for _ in range(order):
        cells = np.block([[4 * cells, 4 * cells + 2], [4 * cells + 3, 4 * cells + 1]])
    return (cells + 0.5) / cells.size


def dithered(density):
    tile = threshold_map()
    rows, columns = np.indices(density.shape)
    side = len(tile)
    return density > tile[rows % side, columns % side]


def overlaps(pixels, span):
    """The share of each pixel in each run of so many; the last run may end beyond the last."""
    starts = np.arange(math.ceil(pixels / span - 1e-9))[:, None] * span
    pixel = np.arange(pixels)[None, :]
    shared = np.minimum(starts + span, pixel + 1) - np.maximum(starts, pixel)
    return np.clip(shared, 0, None) / span


def reduced(array, span):
    """Means over squares of so many pixels, whole or not; beyond the edge lies nothing."""
    rows, columns = (overlaps(side, span) for side in array.shape[:2])
    return np.einsum("ir,rcn,jc->ijn", rows, array, columns, optimize=True)


def compose(body, light, scale):
    """Lays the body over its dithered shadow on the table's ground."""
    pixels = np.asarray(body, float) / 255
    alpha = pixels[..., 3:]
    painted = reduced(pixels[..., :3] * alpha, BODY_FINENESS / scale)
    cover = reduced(alpha, BODY_FINENESS / scale)
    table = np.broadcast_to(np.array(GROUND) / 255, painted.shape).copy()
    if light is not None:
        dark = SHADOW_DEPTH * (1 - np.asarray(light.convert("L"), float) / 255)
        density = reduced(dark[..., None], SHADOW_FINENESS / scale)[..., 0]
        table[dithered(density)] = 0
    picture = painted + (1 - cover) * table
    return np.rint(picture * 255).astype(np.uint8)


def packed(pixels):
    """The picture in 256 colours, with the ground and the shadow's black among them as they are."""
    bare, black = ((pixels == colour).all(axis=2) for colour in (GROUND, 0))
    body = ~bare & ~black
    strip = Image.fromarray(pixels[body][None]).quantize(254, kmeans=3, dither=Image.Dither.NONE)
    indices = black.astype(np.uint8)
    indices[body] = np.asarray(strip)[0] + 2
    picture = Image.fromarray(indices, "P")
    picture.putpalette([*GROUND, 0, 0, 0, *strip.getpalette()][:3 * (indices.max() + 1)])
    return picture


def save(picture, body, light, folder):
    for scale in picture.scales:
        packed(compose(body, light, scale)).save(picture.file(folder, scale), optimize=True)


def build_dice(pictures, work, folder):
    draw_symbols(work)
    write_tumble(work / "tumble.inc")
    loop = ["+KFI0", f"+KFF{STEPS - 1}", "+KI0", f"+KF{STEPS - 1}"]
    size = (pictures["Anidice00"].width, pictures["Anidice00"].height)
    render("die.pov", size, False, work, "body.png", loop)
    render("die.pov", size, True, work, "light.png", loop)
    for step in range(STEPS):
        save(pictures[f"Anidice{step:02}"], Image.open(work / f"body{step:02}.png"),
             Image.open(work / f"light{step:02}.png"), folder)


def build_cup(pictures, work, folder):
    for name, (lean, turn, middle, full) in CUPS.items():
        size = (pictures[name].width, pictures[name].height)
        pose = [f"Declare=Lean={lean}", f"Declare=Turn={turn}", f"Declare=Full={int(full)}",
                f"Declare=Across={middle[0]}", f"Declare=Down={middle[1]}"]
        render("cup.pov", size, False, work, "body.png", pose)
        light = None
        if name == "CupStanding":
            render("cup.pov", size, True, work, "light.png", pose)
            light = Image.open(work / "light.png")
        save(pictures[name], Image.open(work / "body.png"), light, folder)


def build(pictures, folder):
    """Renders what the catalogue calls solid, into this folder."""
    named = {picture.name: picture for picture in pictures}
    with tempfile.TemporaryDirectory() as temporary:
        work = pathlib.Path(temporary)
        build_dice(named, work, folder)
        # A die looks out of the thrown cup, hence what was made for the dice.
        build_cup(named, work, folder)
