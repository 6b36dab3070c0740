"""Draws the emblem: where pixels are few by a drawing fitted to them, else by the large one."""

from PIL import Image

from catalogue import SOURCE
from raster import render_svg

# The smallest of all is set pixel by pixel.
SET = 16
# Clear; light, middle and dark gold; black; the lantern's glass, its flame and the flame's heart.
PAINTS = {".": (0, 0, 0, 0),
          "l": (248, 208, 76, 255), "g": (222, 166, 36, 255), "d": (150, 100, 16, 255),
          "k": (10, 9, 8, 255),
          "y": (255, 226, 122, 255), "o": (229, 122, 10, 255), "w": (255, 251, 224, 255)}


def set_by_hand():
    rows = (SOURCE / f"emblem-{SET}.txt").read_text().split()
    picture = Image.new("RGBA", (SET, SET))
    picture.putdata([PAINTS[letter] for row in rows for letter in row])
    return picture


def draw(picture, scale):
    if picture.width == SET:
        return set_by_hand()
    fitted = SOURCE / f"emblem-{picture.width}.svg"
    if fitted.exists():
        # What lies between pixels stays there only if nothing is reduced.
        return render_svg(fitted, *picture.size(scale), oversample=1)
    return render_svg(SOURCE / "emblem-large.svg", *picture.size(scale))
