"""Makes the pictures of the catalogue, each by its own craft."""

import sys

import coin
import emblem
import engraving
import raster
import wood
from catalogue import SOURCE


def drawn(picture, scale):
    left, top, width, height = (
        scale * part for part in picture.box or (0, 0, picture.width, picture.height))
    art = raster.render_svg(SOURCE / picture.sources[0], width, height)
    return raster.on_ground(*picture.size(scale), picture.ground, art, (left, top))


def engraved(picture, scale):
    svg = engraving.engraved(SOURCE / picture.sources[0])
    art = raster.render_svg(svg, *picture.size(scale), oversample=1)
    return art.convert("RGB")


def sized(draw):
    return lambda picture, scale: draw(*picture.size(scale))


MAKERS = {"drawing": drawn, "engraving": engraved,
          "coin": sized(coin.draw), "emblem": emblem.draw, "wood": sized(wood.draw)}


def build_solid(pictures, folder):
    sys.path.append(str(SOURCE / "solid"))
    import solid

    solid.build(pictures, folder)


def build(pictures, folder):
    folder.mkdir(parents=True, exist_ok=True)
    for picture in pictures:
        if picture.maker == "solid":
            continue
        for scale in picture.scales:
            file = picture.file(folder, scale)
            MAKERS[picture.maker](picture, scale).save(file, "PNG", optimize=True)
            print(file.name, flush=True)
    solids = [picture for picture in pictures if picture.maker == "solid"]
    if solids:
        print("the die and the cup, which take a few minutes", flush=True)
        build_solid(solids, folder)
