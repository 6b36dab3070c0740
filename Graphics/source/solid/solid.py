#!/usr/bin/python3
"""Renders the solid pictures of the table: the tumbling die and the leather cup."""

import pathlib
import subprocess
import sys
import tempfile

import numpy as np
from PIL import Image

HERE = pathlib.Path(__file__).resolve().parent
SYMBOLS = HERE.parent / "symbols"
GROUND = (255, 255, 128)
SCALES = {1: "", 2: "@2x"}

# Each solid is rendered this many times its size on the table, then reduced.
BODY_FINENESS = 8
SHADOW_FINENESS = 2

# Short of black, so that the deepest shadow still shows the table between its dots.
SHADOW_DEPTH = 0.68

FACES = ("heart", "club", "thistle", "lantern", "diamond", "spade")
STEPS = 24
DIE_SIZE = (92, 105)
DIE_EDGE_ROUNDING = 0.27
SYMBOL_PIXELS = 512

# Size on the table; lean to the right and turn towards the player in degrees;
# the place of the cup's middle in the picture.
CUPS = {
    "CupStanding": ((91, 117), 0, 0, (57, 54)),
    "CupCentre": ((89, 137), 0, 0, (44.5, 54)),
    "CupLeft": ((111, 140), -27, 0, (50, 62)),
    "CupRight": ((111, 142), 27, 0, (61, 62)),
    "CupThrow": ((118, 150), 98, 24, (59, 58)),
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


def reduced(array, factor):
    rows, columns = array.shape[0] // factor, array.shape[1] // factor
    return array.reshape(rows, factor, columns, factor, *array.shape[2:]).mean((1, 3))


def compose(body, light, scale):
    """Lays the body over its dithered shadow on the table's ground."""
    pixels = np.asarray(body, float) / 255
    alpha = pixels[..., 3:]
    painted = reduced(pixels[..., :3] * alpha, BODY_FINENESS // scale)
    cover = reduced(alpha, BODY_FINENESS // scale)
    table = np.broadcast_to(np.array(GROUND) / 255, painted.shape).copy()
    if light is not None:
        density = SHADOW_DEPTH * (1 - np.asarray(light.convert("L"), float) / 255)
        table[dithered(reduced(density, SHADOW_FINENESS // scale))] = 0
    picture = painted + (1 - cover) * table
    return Image.fromarray(np.rint(picture * 255).astype(np.uint8), "RGB")


def save(name, body, light, output_dir):
    size = [side // BODY_FINENESS for side in body.size]
    for scale, suffix in SCALES.items():
        path = output_dir / f"{name}{suffix}.png"
        compose(body, light, scale).save(path, optimize=True)
        check(path, [side * scale for side in size])


def check(path, size):
    with Image.open(path) as picture:
        if picture.mode != "RGB" or list(picture.size) != list(size):
            raise ValueError(f"{path.name}: {picture.mode} {picture.size}, not RGB {size}")
        pixels = np.asarray(picture)
    bare = (pixels == GROUND).all(axis=2)
    border = np.concatenate([bare[0], bare[-1], bare[:, 0], bare[:, -1]])
    if not border.all():
        raise ValueError(f"{path.name}: {np.sum(~border)} edge pixels are not bare ground")
    if bare.mean() > 0.9:
        raise ValueError(f"{path.name}: hardly anything is drawn")


def build_dice(work, output_dir):
    draw_symbols(work)
    write_tumble(work / "tumble.inc")
    loop = ["+KFI0", f"+KFF{STEPS - 1}", "+KI0", f"+KF{STEPS - 1}"]
    render("die.pov", DIE_SIZE, False, work, "body.png", loop)
    render("die.pov", DIE_SIZE, True, work, "light.png", loop)
    for step in range(STEPS):
        save(f"Anidice{step:02}", Image.open(work / f"body{step:02}.png"),
             Image.open(work / f"light{step:02}.png"), output_dir)


def build_cup(work, output_dir):
    for name, (size, lean, turn, middle) in CUPS.items():
        pose = [f"Declare=Lean={lean}", f"Declare=Turn={turn}",
                f"Declare=Across={middle[0]}", f"Declare=Down={middle[1]}"]
        render("cup.pov", size, False, work, "body.png", pose)
        light = None
        if name == "CupStanding":
            render("cup.pov", size, True, work, "light.png", pose)
            light = Image.open(work / "light.png")
        save(name, Image.open(work / "body.png"), light, output_dir)


def build(output_dir: pathlib.Path) -> None:
    output_dir.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        build_dice(work, output_dir)
        build_cup(work, output_dir)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: solid.py OUTPUT_DIR")
    build(pathlib.Path(sys.argv[1]))
