#!/usr/bin/python3 -B
"""The package on a bare system: a root of its own, into which apt alone installs it, where a whole turn is played, and
from which it is removed again.   bare_system_test.py PACKAGE.deb

Packages come from where this system gets its own. Ends with status 77, and tells why, where no root can be made.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

sys.path.append(str(pathlib.Path(__file__).parents[2] / "tools" / "display"))

NAME = "thistle-and-lantern"
PLAYER = 4242
HOME = pathlib.PurePath("home/player")
RUNTIME = pathlib.PurePath("run/user")
SETTINGS = HOME / ".config" / "Thistle and Lantern" / "Settings.conf"
# The system's own books and caches, which any package leaves its marks in.
BOOKS = re.compile(r"(var/(lib/(apt|dpkg)|cache|log))/")


def said(*command):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if done.returncode != 0:
        sys.exit(f"{' '.join(command)} ended with status {done.returncode}:\n{done.stdout[-5000:]}")
    return done.stdout


def apt_sources():
    """Address, suite and component of all that this system itself gets Debian's packages from."""
    lines = said("apt-get", "indextargets", "--format", "$(ORIGIN) $(REPO_URI) $(RELEASE) $(COMPONENT)",
                 "Created-By: Packages").splitlines()
    return [line.split()[1:] for line in dict.fromkeys(lines) if line.startswith("Debian ")]


class Root:
    """A bare system in a folder."""

    def __init__(self, folder):
        self.folder = folder
        sources = apt_sources()
        suite = re.search(r"^VERSION_CODENAME=(.*)$", pathlib.Path("/etc/os-release").read_text(), re.M)[1]
        mirror = next(address for address, release, _ in sources if release == suite)
        said("debootstrap", "--variant=minbase", suite, str(folder), mirror)
        lines = "".join(f"deb {' '.join(source)}\n" for source in sources)
        (folder / "etc/apt/sources.list").write_text(lines)
        # How this system reaches them: proxies, patience, and what it thinks of old indexes.
        manners = re.findall(r"^Acquire::(?:https?::|Check-|Retries).*\n", said("apt-config", "dump"), re.M)
        (folder / "etc/apt/apt.conf.d/50-as-outside").write_text("".join(manners))
        # What is thrown away in a minute need not survive a power cut.
        (folder / "etc/dpkg/dpkg.cfg.d/hasty").write_text("force-unsafe-io\n")
        shutil.copy("/etc/resolv.conf", folder / "etc/resolv.conf")
        for place in (HOME, RUNTIME):
            (folder / place).mkdir(mode=0o700)
            os.chown(folder / place, PLAYER, PLAYER)
        self.apt("update")

    def apt(self, *words):
        said("chroot", str(self.folder), "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LANG=C.UTF-8",
             "DEBIAN_FRONTEND=noninteractive", "apt-get", "--yes", "--quiet", "--no-install-recommends", *words)

    def paths(self):
        """All files and folders, as texts."""
        paths = (str(path.relative_to(self.folder)) for path in self.folder.rglob("*"))
        return {path for path in paths if not BOOKS.match(path)}


def play(root, launcher):
    from desk import Desk, wait_until
    from game import Game
    from tour import tour

    # In place of the shell the game itself runs under the number that its windows are known by.
    launcher.write_text(f"""#!/bin/sh
exec chroot --userspec={PLAYER}:{PLAYER} '{root.folder}' /usr/bin/env -i DISPLAY="$DISPLAY" HOME=/{HOME} \\
  XDG_RUNTIME_DIR=/{RUNTIME} LANG=C.UTF-8 PATH=/usr/bin:/bin:/usr/games SDL_AUDIODRIVER=dummy {NAME}
""")
    launcher.chmod(0o755)
    os.environ["GAME"] = str(launcher)
    entry = (root.folder / f"usr/share/applications/{NAME}.desktop").read_text()
    with Desk() as desk, Game(desk) as game:
        _, kind = game.window.window.get_wm_class()
        assert f"\nStartupWMClass={kind}\n" in entry, f"the desktop entry does not know the window's class {kind}"
        maps = pathlib.Path(f"/proc/{game.process.pid}/maps")
        wait_until("the library that sounds are played by", lambda: "libSDL2" in maps.read_text())
        list(tour(game))
        assert game.close() == 0


def main(package):
    if os.geteuid() != 0 or not apt_sources():
        print("bare_system: cannot be tried: it takes root, and indexes of packages, which apt-get update brings")
        return 77
    with tempfile.TemporaryDirectory(prefix="bare-system-") as name:
        folder = pathlib.Path(name)
        folder.chmod(0o755)
        root = Root(folder / "root")
        before = root.paths()
        copy = pathlib.Path(shutil.copy(package, root.folder / "root"))
        root.apt("install", f"/root/{copy.name}")
        play(root, folder / "launcher")
        root.apt("autoremove", "--purge", NAME)
        copy.unlink()
        after = root.paths()
    settings = {str(path) for path in (SETTINGS, *SETTINGS.parents) if HOME in path.parents}
    assert after == before | settings, f"left or taken away: {sorted(after ^ (before | settings))}"
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
