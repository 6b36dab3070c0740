#!/usr/bin/python3
"""The game followed and played by a screen reader alone: what it finds, what it does, and what it is told unasked."""

import os
import re
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

from desk import Desk, wait_until  # noqa: E402
from game import CUP, DICE, SQUARES, VALUES, Game, pile_place, write_settings  # noqa: E402

SYMBOLS = ["heart", "spade", "diamond", "club", "thistle", "lantern"]
ORDER = ["Ten Pound Notes", "Five Pound Notes", "One Pound Coins", *SYMBOLS, "dice cup", "Get Change", "first die",
         "second die", "third die", "Total"]


class Reader:
    """Listens on the display's own bus, as the user's would from the session's start."""

    def __init__(self, desk):
        self.bus = f"unix:path={desk.home}/bus"
        os.environ |= {"DBUS_SESSION_BUS_ADDRESS": self.bus, "XDG_RUNTIME_DIR": desk.home}
        desk.start(["dbus-daemon", "--session", "--nofork", "--address=" + self.bus], quiet=True,
                   DBUS_SESSION_BUS_ADDRESS=self.bus)
        wait_until("the session bus", lambda: os.path.exists(desk.home + "/bus"))
        listens = GLib.Variant("(ssv)", ("org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", True)))
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties",
                                                        "Set", listens, None, 0, -1, None)
        Atspi.init()
        Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
        self.heard = []
        self.visited = []  # what got the keyboard, by name
        self.listener = Atspi.EventListener.new(self._hear)
        for change in ("showing", "focused"):
            self.listener.register("object:state-changed:" + change)

    def _hear(self, event):
        try:
            if not event.detail1:
                return
            if event.type.endswith("focused"):
                self.visited.append(event.source.get_name())
            elif event.source.get_role() == Atspi.Role.NOTIFICATION:
                self.heard.append(event.source.get_name())
        except GLib.Error:
            pass  # a form that has gone by now

    def wait_until(self, what, look):
        def listen():
            while GLib.MainContext.default().iteration(False):
                pass
            return look()

        return wait_until(what, listen)

    def find(self, name, role=None):
        """Waits for what is called so, and shows."""
        def look(place):
            if place.get_name() == name and role in (None, place.get_role()) and self.shows(place):
                return place
            return next(filter(None, map(look, children(place))), None)

        def look_everywhere():
            try:
                return look(Atspi.get_desktop(0))
            except GLib.Error:
                return None  # it has changed under the look

        return self.wait_until(name, look_everywhere)

    @staticmethod
    def shows(place):
        return place.get_state_set().contains(Atspi.StateType.SHOWING)

    def do(self, name, action):
        place = self.find(name, Atspi.Role.PUSH_BUTTON)
        self.wait_until(f"{action} of {name}", lambda: action in actions(place))
        Atspi.Action.do_action(place, actions(place).index(action))

    def wait_for(self, sentence):
        """Waits until it hears that, and returns all that it has heard up to there."""
        self.wait_until(sentence, lambda: any(sentence in words for words in self.heard))
        heard, self.heard = self.heard, []
        return heard


def children(place):
    return filter(None, (place.get_child_at_index(i) for i in range(place.get_child_count())))


def actions(place):
    return [Atspi.Action.get_action_name(place, i) for i in range(Atspi.Action.get_n_actions(place))]


class ByReader(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(Desk())
        cls.reader = Reader(cls.desk)

    def start(self, **stored):
        write_settings(self.desk, **stored)
        return self.enterContext(Game(self.desk, DBUS_SESSION_BUS_ADDRESS=self.reader.bus))

    def test_a_whole_turn(self):
        game, reader = self.start(Stash0="0"), self.reader
        reader.do("Play Game", "Press")
        reader.wait_for("Total: £200.")
        found = list(children(reader.find("Table", Atspi.Role.FORM)))[:len(ORDER)]
        self.assertEqual([place.get_name() for place in found], ORDER)
        left, top = game.corner()
        boxes = [place.get_extents(Atspi.CoordType.SCREEN) for place in found]
        corners = [(box.x - left, box.y - top) for box in boxes]
        self.assertEqual(corners[:10], [pile_place(d, 0) for d in range(3)] + [s[:2] for s in SQUARES] + [CUP[:2]])
        self.assertEqual(corners[11:], [die[:2] for die in DICE] + [VALUES[3][:2]])
        self.assertEqual(actions(found[0]), [f"bet on {symbol}" for symbol in SYMBOLS])

        reader.do("Ten Pound Notes", "bet on club")
        reader.wait_for("club: £10 bet, 1 of 5 pieces. Total: £190.")
        for count in range(2, 6):
            reader.do("club", "bet one more")
            reader.wait_for(f"club: £{10 * count} bet, {count} of 5 pieces. Total: £{200 - 10 * count}.")
        self.assertEqual(found[6].get_description(), "£50 bet, 5 of 5 pieces")
        for _ in range(2):
            reader.do("One Pound Coins", "bet on club")
            reader.wait_for("club is full.")
        reader.do("club", "move to heart")
        reader.wait_for("heart: £10 bet")
        reader.do("club", "take back")
        reader.wait_for("Total: £160.")

        reader.do("dice cup", "throw the dice")
        told = " ".join(reader.wait_for("Total: "))
        dice = re.search(r"Dice: (\w+), (\w+), (\w+)\.", told).groups()
        total, outcome = 200, "The dice are being thrown. Dice: {}, {}, {}.".format(*dice)
        for symbol, stake in (("heart", 10), ("club", 30)):
            matches = dice.count(symbol)
            total += (matches or -1) * stake
            outcome += f" {symbol}: " + (f"WIN £{matches * stake}." if matches else "YOU LOSE.")
        self.assertEqual(told, f"{outcome} Total: £{total}.")
        self.assertEqual(found[-1].get_description(), f"£{total}")

    def test_the_offer_of_money(self):
        self.start(Stash0="3")
        self.reader.do("Play Game", "Press")
        self.reader.find("You Have £30 Left From a Previous Game\nWould You Like To Start With This Amount ?")
        self.reader.wait_until("the keyboard on its answer", lambda: self.reader.visited[-1:] == ["Yes"])
        self.reader.do("Yes", "Press")
        self.reader.wait_for("Total: £30.")


if __name__ == "__main__":
    unittest.main()
