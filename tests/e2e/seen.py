"""What several tests ask of a picture of the table."""

from game import TEXTS, dice_frames, difference, table


def opens_with(canvas, counts):
    """A turn is open with this money in the piles, and every pixel but the texts is as it should be."""
    return difference(canvas, table(counts, dice_frames(canvas)), TEXTS) is None
