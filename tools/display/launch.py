"""Starting the game as its platform starts it, and its stored values. The variable GAME names the program."""

import configparser
import functools
import os
import pathlib
import subprocess
import tempfile

import wine
from desk import wait_until

TITLE = "Thistle and Lantern"
SECTION = "Settings"


def program():
    return os.environ["GAME"]


class Native:
    """The program of this system."""

    def __init__(self, desk):
        self.desk = desk
        self.settings_file = pathlib.Path(desk.home, "config", TITLE, f"{SECTION}.conf")

    def start(self, scale, pipes=None, **variables):
        return self.desk.start([program()], pipes=pipes, **{"QT_SCALE_FACTOR": str(scale), **variables})

    def settings(self):
        store = configparser.ConfigParser()
        store.optionxform = str
        store.read(self.settings_file)
        return dict(store["General"])

    def write_settings(self, values):
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        self.settings_file.write_text("[General]\n" + "".join(f"{key}={value}\n" for key, value in values.items()))


class Windows:
    """The program for Windows, under Wine in a folder of the display's own."""

    KEY = rf"HKCU\Software\{TITLE}"

    def __init__(self, desk):
        self.desk = desk
        self.folder = pathlib.Path(desk.home, "wine")
        wine.copy(self.folder)
        desk.start([wine.SERVER, "--foreground", "--persistent"], **wine.variables(self.folder))
        desk.at_end(lambda: wine.end(self.folder))
        wait_until("Wine's server", lambda: wine.is_served(self.folder))

    def run(self, *words):
        """Runs one of Wine's own programs, and returns what it says."""
        environment = {"PATH": os.environ["PATH"], "DISPLAY": self.desk.name, "HOME": self.desk.home}
        # Not through a pipe: what Wine starts on the side would hold it open.
        with tempfile.TemporaryFile("w+") as said:
            wine.run(self.folder, *words, environment=environment, stdin=subprocess.DEVNULL, stdout=said,
                     stderr=subprocess.DEVNULL)
            said.seek(0)
            return said.read()

    def start(self, scale, pipes=None, **variables):
        self.run("reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d",
                 str(round(96 * scale)), "/f")
        # A windowed program says nothing; what is said is Wine's own.
        return self.desk.start([wine.LOADER, program()], quiet=True, pipes=pipes, **wine.variables(self.folder),
                               **variables)

    def settings(self):
        for line in self.run("reg", "query", self.KEY, "/v", SECTION).splitlines():
            if "REG_MULTI_SZ" in line:
                return dict(value.split("=", 1) for value in line.split(None, 2)[2].split(r"\0") if value)
        return {}

    def write_settings(self, values):
        lines = r"\0".join(f"{key}={value}" for key, value in values.items())
        self.run("reg", "add", self.KEY, "/v", SECTION, "/t", "REG_MULTI_SZ", "/d", lines, "/f")

    def end_session(self):
        """What the system tells all programs when its user logs off."""
        self.run("wineboot", "--end-session")


@functools.lru_cache(1)
def launch(desk):
    """How the game is started on this display."""
    return (Windows if program().endswith(".exe") else Native)(desk)
