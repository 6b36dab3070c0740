"""What several tests ask of the game, and what they bring it into."""

from desk import wait_until
from game import CUP, CUP_FRAMES, TEXTS, dice_frames, difference, pile_place, settings, shows, table

OLD = {"MainLeft": "1500", "MainTop": "900", "SoundOn": "False", "Stash0": "7", "Stash1": "30", "Stash2": "1"}


def opens_with(canvas, counts):
    """A turn is open with this money in the piles, and every pixel but the texts is as it should be."""
    return difference(canvas, table(counts, dice_frames(canvas)), TEXTS) is None


def kept(desk):
    """The stored counts of the piles."""
    stored = settings(desk)
    return [int(stored[f"Stash{d}"]) for d in range(3)]


def start_afresh(game):
    """From the opening form to the table, without the earlier money."""
    game.choose("g", "n")
    game.answer("n")
    game.wait_for_turn()


def in_hand(game):
    game.drag(pile_place(0, 12), (300, 20))
    wait_until("the piece in the hand", lambda: shows(game.canvas(), "TenPound", (300, 20)))


def in_shake(game):
    game.bet(0, 12, 0)
    game.click(CUP)
    wait_until("the shake", lambda: shows(game.canvas(), "CupCentre", CUP_FRAMES["CupCentre"]))


def minimised(game):
    game.window.ask_manager("WM_CHANGE_STATE", 3)
    wait_until("the window to go", lambda: not game.window.is_shown())


def minimised_and_back(game):
    minimised(game)
    game.window.ask_manager("_NET_ACTIVE_WINDOW", 2)
    wait_until("the window to come back", game.window.is_shown)


def under_a_menu(game):
    wait_until("the keyboard", game.window.has_focus)
    game.desk.key("Alt_L", "g")
    return wait_until("the menu", lambda: game.other_window(menu=True))
