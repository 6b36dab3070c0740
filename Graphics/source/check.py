"""Looks hard at finished pictures and names every one that is not as it must be."""

import numpy as np
from PIL import Image, ImageColor

import catalogue

WOOD_MEAN = np.array([242, 198, 98])
# The button faces that the wood is squeezed to, and what must be left of it there: how far
# tones stray from their mean, and how many colours.
FACES = ((150, 81), (100, 26), (89, 25))
GRAIN, COLOURS = 11, 400
# How far the wood's finer picture stands apart from the single one enlarged.
FINER = 3
# An edge pixel may stray this far from the mixes of its ground and its own shape.
STRAY = 30
STRAYS_ALLOWED = 0.04
# More blue than the soft edge of gold or black has on an average.
BLUE = 48
# The emblem fills so much of its height and of its width, less of this at the sizes that are too
# small for its spread leaves; and of its outermost pixels only so few are dark.
HIGH, WIDE, WIDE_WITHOUT_LEAVES = 0.9, 0.85, 0.75
LEAFLESS = 32
DARK, DARK_ALLOWED = 0.08, 0.04
# So many half dark pixels to a shadow's black ones are the die's own soft edge.
SMEARED = 0.25
# The scales of a picture, seen through blocks of this many pixels, differ less than this.
BLOCK = 8
UNLIKE = 48
# What all pictures together may add to the program.
BYTES = 1_750_000


def opened(file):
    with Image.open(file) as image:
        if image.format != "PNG":
            raise ValueError(f"is {image.format}, not PNG")
        return np.asarray(image.convert("RGBA"), int)


def border(pixels, depth):
    """The pixels of a frame so deep along the edges, as one list."""
    inside = np.zeros(pixels.shape[:2], bool)
    inside[depth:-depth, depth:-depth] = True
    return pixels[~inside]


def ground_faults(picture, pixels, scale):
    alpha = pixels[..., 3]
    if picture.ground == "transparent":
        if alpha[[0, 0, -1, -1], [0, -1, 0, -1]].any():
            yield "has a corner that is not transparent"
        return
    if (alpha != 255).any():
        yield "must be opaque everywhere"
    if picture.ground != "opaque" and picture.clear:
        colour = ImageColor.getrgb(picture.ground)
        frame = border(pixels[..., :3], int(picture.clear * scale))
        wrong = int((frame != colour).any(axis=1).sum())
        if wrong:
            yield f"shows {wrong} edge pixels that are not {picture.ground}"


def neighbours(array, reach):
    """The array as seen from each pixel within reach, edges repeated."""
    padded = np.pad(array, [(reach, reach)] * 2 + [(0, 0)] * (array.ndim - 2), mode="edge")
    rows, columns = array.shape[:2]
    for down in range(2 * reach + 1):
        for right in range(2 * reach + 1):
            yield padded[down:down + rows, right:right + columns]


def stray_from_mixes(colours, ground, shape):
    """How far colours lie from the line between the ground and a shape's colour."""
    line = shape - ground
    length = np.maximum((line ** 2).sum(axis=-1, keepdims=True), 1)
    along = np.clip(((colours - ground) * line).sum(axis=-1, keepdims=True) / length, 0, 1)
    return np.linalg.norm(colours - ground - along * line, axis=-1)


def stray_share(pixels, ground):
    """The share of soft edge pixels that no mix of ground and nearby shape explains."""
    colours = pixels[..., :3].astype(float)
    bare = (colours == ground).all(axis=2)
    near = np.any([seen[..., 0] for seen in neighbours(bare[..., None], 1)], axis=0)
    edge, body = near & ~bare, ~near
    least = np.full(edge.shape, np.inf)
    for seen in neighbours(np.dstack([colours, body]), 3):
        here = stray_from_mixes(colours, ground, seen[..., :3])
        least = np.where(seen[..., 3] > 0, np.minimum(least, here), least)
    return (least[edge] > STRAY).mean() if edge.any() else 0


def fringe_faults(picture, pixels):
    if picture.ground == "transparent":
        alpha = pixels[..., 3]
        # All clear pictures are gold or black at their edges: paleness is left from another ground.
        soft = pixels[(alpha >= 32) & (alpha <= 160)]
        if len(soft) and soft[:, 2].mean() > BLUE:
            yield f"has a pale fringe with a blue of {soft[:, 2].mean():.0f}"
        return
    share = stray_share(pixels, np.array(ImageColor.getrgb(picture.ground), float))
    if share > STRAYS_ALLOWED:
        yield f"has a fringe of another ground on {share:.0%} of its edge"


def extent(taken):
    """The share of a line from the first taken place to the last."""
    places = np.flatnonzero(taken)
    return (places[-1] + 1 - places[0]) / len(taken)


def emblem_faults(picture, pixels):
    solid = pixels[..., 3] >= 128
    wide = WIDE_WITHOUT_LEAVES if picture.width <= LEAFLESS else WIDE
    for side, across, least in (("height", 1, HIGH), ("width", 0, wide)):
        filled = extent(solid.any(axis=across))
        if filled < least:
            yield f"fills only {filled:.0%} of its {side}"
    beside = list(neighbours(pixels[..., 3], 1))[1::2]
    open_to_ground = (np.array(beside) < 64).any(axis=0)
    dark = (luminance(pixels[solid & open_to_ground]) < DARK).mean()
    if dark > DARK_ALLOWED:
        yield f"is dark on {dark:.0%} of its outline, where gold should part it from a dark ground"
    if (pixels[..., 1] > pixels[..., 0])[solid].any():
        yield "is not in gold and black alone"


def linear_light():
    part = np.arange(256) / 255
    return np.where(part <= 0.04045, part / 12.92, ((part + 0.055) / 1.055) ** 2.4)


def luminance(pixels):
    return linear_light()[pixels[..., :3]] @ (0.2126, 0.7152, 0.0722)


def wood_faults(pixels, scale):
    mean = pixels[..., :3].mean(axis=(0, 1))
    if np.abs(mean - WOOD_MEAN).max() > 3:
        yield f"has the mean colour {np.rint(mean).astype(int).tolist()}"
    contrast = (luminance(pixels).min() + 0.05) / 0.05
    if contrast < 4.5:
        yield f"gives black text a contrast of only {contrast:.1f}"
    board = Image.fromarray(pixels[..., :3].astype(np.uint8))
    faces = [board.resize((across * scale, down * scale), Image.Resampling.BOX)
             for across, down in FACES]
    colours = min(len(face.getcolors(face.width * face.height)) for face in faces)
    if colours < COLOURS:
        yield f"has only {colours} colours on a button"
    if min(np.std(face.convert("L")) for face in faces) < GRAIN:
        yield "shows no grain on a button"


def shadow_faults(pixels):
    red, green, blue = (pixels[..., channel] for channel in range(3))
    # Half dark, and still as yellow as the table.
    mixed = (abs(red - green) < 8) & (abs(2 * blue - red) < 20) & (red > 30) & (red < 225)
    dots = (pixels[..., :3] == 0).all(axis=2)
    if mixed.sum() > SMEARED * max(dots.sum(), 100):
        yield "has the dots of its shadow smeared"


def file_faults(picture, folder, scale):
    file = picture.file(folder, scale)
    if not file.exists():
        yield "is missing"
        return
    if file.stat().st_size > picture.kilobytes * 1024 * scale ** 2:
        yield f"takes {file.stat().st_size // 1024} kB"
    try:
        pixels = opened(file)
    except (OSError, ValueError) as error:
        yield f"cannot be read: {error}"
        return
    size = picture.size(scale)
    if pixels.shape[1::-1] != size:
        yield "is {1} x {0}, not {2} x {3}".format(*pixels.shape[:2], *size)
        return
    yield from ground_faults(picture, pixels, scale)
    if len(np.unique(pixels @ (1 << 24, 1 << 16, 1 << 8, 1))) < 8:
        yield "shows next to nothing"
    if picture.maker in ("drawing", "coin", "emblem"):
        yield from fringe_faults(picture, pixels)
    if picture.maker == "emblem":
        yield from emblem_faults(picture, pixels)
    if picture.maker == "solid":
        yield from shadow_faults(pixels)
    if picture.maker == "wood":
        yield from wood_faults(pixels, scale)


def blocks(picture, folder, scale):
    size = (-(-picture.width // BLOCK), -(-picture.height // BLOCK))
    drawing = (0, 0, picture.width * scale, picture.height * scale)
    with Image.open(picture.file(folder, scale)) as image:
        seen = image.convert("RGBA").convert("RGBa").resize(size, Image.Resampling.BOX, box=drawing)
        return np.asarray(seen, int)


def sharpening(single, double):
    """How much the picture at double scale shows that the single one, enlarged, does not."""
    with Image.open(single) as coarse, Image.open(double) as fine:
        enlarged = coarse.convert("L").resize(fine.size, Image.Resampling.BICUBIC)
        return np.std(np.asarray(fine.convert("L"), int) - np.asarray(enlarged, int))


def scale_faults(picture, folder):
    """Tells when two scales do not show the same, as after a mix-up of files."""
    files = [picture.file(folder, scale) for scale in picture.scales]
    views = [blocks(picture, folder, scale) for scale in picture.scales]
    for file, view in zip(files[1:], views[1:]):
        if np.abs(views[0] - view).max() > UNLIKE:
            yield f"{file.name} does not show what {files[0].name} shows"
    if picture.maker == "wood" and sharpening(*files) < FINER:
        yield f"{files[-1].name} is no finer than {files[0].name}"


def source_faults(picture, recorded):
    try:
        fresh = recorded.get(picture.name) == picture.source_hash()
    except FileNotFoundError as error:
        yield str(error)
        return
    if not fresh:
        yield f"{picture.name} was not rebuilt after its source changed"


def picture_faults(picture, folder):
    found = [f"{picture.file(folder, scale).name} {fault}"
             for scale in picture.scales for fault in file_faults(picture, folder, scale)]
    return found or list(scale_faults(picture, folder))


def faults(pictures, folder):
    """Every fault of the pictures in a folder, one line each."""
    recorded = catalogue.recorded_hashes(folder)
    for picture in pictures:
        yield from picture_faults(picture, folder)
        yield from source_faults(picture, recorded)
    together = sum(file.stat().st_size for file in folder.glob("*.png"))
    if together > BYTES:
        yield f"all pictures together take {together / 1e6:.2f} MB"
    known = {picture.file(folder, scale) for picture in pictures for scale in picture.scales}
    for stranger in sorted(set(folder.glob("*.png")) - known):
        yield f"{stranger.name} is not in the catalogue"
