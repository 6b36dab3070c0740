#!/usr/bin/python3 -B
"""The package on a bare system: a root of its own, into which apt alone installs it, where a whole turn is played, and
from which it is removed again.

    bare_system_test.py PACKAGE.deb

Sources of packages are those of the system that this runs on. Ends with status 77, and a line that tells why, where
such a root cannot be made.
"""

import contextlib
import importlib.util
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.append(str(pathlib.Path(__file__).parents[2] / "tools" / "display"))

NAME = "thistle-and-lantern"
PLAYER = 4242
HOME = pathlib.PurePath("home/player")
RUNTIME = pathlib.PurePath("run/user")
SETTINGS = HOME / ".config" / "Thistle and Lantern" / "Settings.conf"
# The system's own books and caches, which any package leaves its marks in.
BOOKS = re.compile(r"(var/(lib/(apt|dpkg)|cache|log))/")
CANNOT = 77


def said(*command):
    done = subprocess.run(command, capture_output=True, text=True)
    if done.returncode != 0:
        words = done.stdout[-3000:] + done.stderr[-3000:]
        sys.exit(f"{' '.join(command)} ended with status {done.returncode}:\n{words}")
    return done.stdout


def apt_sources():
    """Address, suite and component of all that this system itself gets Debian's packages from."""
    lines = said("apt-get", "indextargets", "--format", "$(ORIGIN) $(REPO_URI) $(RELEASE) $(COMPONENT)",
                 "Created-By: Packages").splitlines()
    return [line.split()[1:] for line in dict.fromkeys(lines) if line.startswith("Debian ")]


def apt_manners():
    """How this system reaches them: proxies, patience, and what it thinks of old indexes."""
    return "".join(line + "\n" for line in said("apt-config", "dump").splitlines()
                   if re.match(r"Acquire::(https?::|Check-|Retries)", line))


def obstacle():
    if os.geteuid() != 0:
        return "only root can make a root"
    for program in ("debootstrap", "apt-get", "Xvfb", "openbox"):
        if not shutil.which(program):
            return f"{program} is not installed"
    if not importlib.util.find_spec("Xlib"):
        return "python3-xlib is not installed"
    if not apt_sources():
        return "this system knows no source of Debian's packages; apt-get update may help"
    return None


class Root:
    """A bare system in a folder."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        sources = apt_sources()
        suite = re.search(r"^VERSION_CODENAME=(.*)$", pathlib.Path("/etc/os-release").read_text(), re.M)[1]
        mirror = next(address for address, release, _ in sources if release == suite)
        said("debootstrap", "--variant=minbase", suite, folder, mirror)
        lines = "".join(f"deb {' '.join(source)}\n" for source in sources)
        (self.folder / "etc/apt/sources.list").write_text(lines)
        (self.folder / "etc/apt/apt.conf.d/50-as-outside").write_text(apt_manners())
        # What is thrown away in a minute need not survive a power cut.
        (self.folder / "etc/dpkg/dpkg.cfg.d/hasty").write_text("force-unsafe-io\n")
        shutil.copy("/etc/resolv.conf", self.folder / "etc/resolv.conf")
        for place in (HOME, RUNTIME):
            (self.folder / place).mkdir(mode=0o700)
            os.chown(self.folder / place, PLAYER, PLAYER)
        self.apt("update")

    def run(self, *command):
        return said("chroot", str(self.folder), "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LANG=C.UTF-8",
                    "DEBIAN_FRONTEND=noninteractive", *command)

    def apt(self, *words):
        return self.run("apt-get", "--yes", "--quiet", "--no-install-recommends", *words)

    def packages(self):
        """Installed packages, with the kilobytes that each takes."""
        lines = self.run("dpkg-query", "--show", "--showformat=${Package} ${Installed-Size} ${Status}\\n").splitlines()
        words = [line.split() for line in lines if line.endswith(" installed")]
        return {name: int(size) for name, size, *_ in words}

    def paths(self):
        """All files and folders, as texts."""
        paths = (str(path.relative_to(self.folder)) for path in self.folder.rglob("*"))
        return {path for path in paths if not BOOKS.match(path)}


@contextlib.contextmanager
def step(what):
    start = time.monotonic()
    yield
    print(f"{time.monotonic() - start:6.1f} s  {what}", flush=True)


def install(root, package):
    before = root.packages()
    shutil.copy(package, root.folder / "root")
    root.apt("install", f"/root/{package.name}")
    new = {name: size for name, size in root.packages().items() if name not in before}
    ours = new.pop(NAME)
    print(f"          {package.stat().st_size / 1e6:.1f} MB to fetch, {ours / 1024:.1f} MiB installed, and with it "
          f"{len(new)} packages of {sum(new.values()) / 1024:.0f} MiB that a bare system lacks")


def play(root, folder):
    from desk import Desk, wait_until
    from game import TABLE, Game
    from tour import tour

    # In place of the shell the game itself runs under the number that its windows are known by.
    launcher = folder / "launcher"
    launcher.write_text(f"""#!/bin/sh
exec chroot --userspec={PLAYER}:{PLAYER} '{root.folder}' /usr/bin/env -i DISPLAY="$DISPLAY" HOME=/{HOME} \\
  XDG_RUNTIME_DIR=/{RUNTIME} LANG=C.UTF-8 PATH=/usr/bin:/bin:/usr/games SDL_AUDIODRIVER=dummy {NAME}
""")
    launcher.chmod(0o755)
    os.environ["GAME"] = str(launcher)
    entry = (root.folder / f"usr/share/applications/{NAME}.desktop").read_text()
    with Desk() as desk, Game(desk) as game:
        name, kind = game.window.window.get_wm_class()
        assert f"\nStartupWMClass={kind}\n" in entry, f"the desktop entry does not know the window's class {kind}"
        maps = pathlib.Path(f"/proc/{game.process.pid}/maps")
        wait_until("the library that sounds are played by", lambda: "libSDL2" in maps.read_text())
        stages = {stage.name: stage for stage in tour(game)}
        assert stages["opening"].canvas.getpixel((316, 400)) == TABLE
        assert {"table", "dice", "next-turn"} <= stages.keys()
        status = game.close()
    assert status == 0, f"the game ended with status {status}"


def check_removed(root, before):
    after = root.paths()
    files = [path for path in sorted(after - before) if not (root.folder / path).is_dir()]
    print("          left behind: " + ", ".join(files))
    settings = {str(path) for path in (SETTINGS, *SETTINGS.parents) if HOME in path.parents}
    assert after - before == settings, f"left beside the settings: {sorted(after - before - settings)}"
    assert before <= after, f"removal took away {sorted(before - after)}"


def main(package):
    if reason := obstacle():
        print(f"bare_system: cannot be tried: {reason}")
        return CANNOT
    with tempfile.TemporaryDirectory(prefix="bare-system-") as name:
        folder = pathlib.Path(name)
        folder.chmod(0o755)
        with step("a bare system"):
            root = Root(folder / "root")
        before = root.paths()
        with step("installed by apt"):
            install(root, package)
        with step("played a turn and closed"):
            play(root, folder)
        with step("removed by apt"):
            root.apt("autoremove", "--purge", NAME)
        (root.folder / "root" / package.name).unlink()
        check_removed(root, before)
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__.strip())
    sys.exit(main(pathlib.Path(sys.argv[1])))
