"""Lays all pictures out on one sheet, at single size and enlarged."""

from PIL import Image, ImageDraw, ImageFont

WIDTH = 1800
GAP = 16
LABEL = 14
ENLARGED = 3
# Of a bigger picture only this much is enlarged, or the wood would fill the sheet.
ENLARGED_PART = 150
TABLE = "#FFFF80"


def cell(picture, folder):
    """One picture at its size beside itself enlarged pixel by pixel, over its name."""
    with Image.open(picture.file(folder, 1)) as image:
        art = image.convert("RGBA")
    part = art.crop((0, 0, min(art.width, ENLARGED_PART), min(art.height, ENLARGED_PART)))
    large = part.resize((part.width * ENLARGED, part.height * ENLARGED), Image.Resampling.NEAREST)
    deep = max(art.height, large.height)
    card = Image.new("RGB", (art.width + GAP // 2 + large.width, deep + LABEL), TABLE)
    card.paste(art, (0, 0), art)
    card.paste(large, (art.width + GAP // 2, 0), large)
    font = ImageFont.load_default()
    ImageDraw.Draw(card).text((0, deep + 2), picture.name, "black", font)
    return card


def places(cards):
    """Sets the cards in rows; gives each its corner, and last the height used."""
    left = top = GAP
    deep = 0
    for card in cards:
        if left > GAP and left + card.width + GAP > WIDTH:
            left, top, deep = GAP, top + deep + GAP, 0
        yield left, top
        left, deep = left + card.width + GAP, max(deep, card.height)
    yield 0, top + deep + GAP


def lay_out(pictures, folder, file):
    cards = [cell(picture, folder) for picture in pictures]
    *corners, (_, height) = places(cards)
    sheet = Image.new("RGB", (WIDTH, height), TABLE)
    for card, corner in zip(cards, corners):
        sheet.paste(card, corner)
    sheet.save(file)
