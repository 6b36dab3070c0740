#!/usr/bin/python3
"""Windows programs under Wine, each run of them in a folder of its own.

As a program: wine.py PROGRAM ARGUMENTS... runs one without a display, and ends with its status.
"""

import fcntl
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BINARIES = pathlib.Path("/usr/lib/wine")  # where Debian has them
LOADER = BINARIES / "wine64"
SERVER = BINARIES / "wineserver64"
TEMPLATES = pathlib.Path(__file__).parents[2] / "build" / "wine"
REGISTRY = "*.reg", ".update-timestamp"


def variables(folder):
    """What a program needs in its environment to run in this folder."""
    return {"WINEPREFIX": str(folder), "WINELOADER": str(LOADER), "WINESERVER": str(SERVER), "WINEDEBUG": "-all",
            # No menus for the user's desktop, and no boxes that offer to fetch more of Wine.
            "WINEDLLOVERRIDES": "winemenubuilder.exe,mscoree,mshtml="}


def run(folder, *command, environment=os.environ, **options):
    return subprocess.run([LOADER, *command], env={**environment, **variables(folder)}, **options)


def is_served(folder):
    """Whether the folder's server listens; then it has left its address there. A program that came before would start
    one of its own."""
    address = folder / "wineserver"
    return address.exists() and address.stat().st_size > 0


def end(folder):
    """Ends all that Wine has started for this folder. Left alone, some of it would stay."""
    subprocess.run([SERVER, "--kill"], env={**os.environ, **variables(folder)}, check=False)


def template():
    """A folder as Wine makes it, made once for each version of it."""
    if not LOADER.exists():
        raise FileNotFoundError("wine64 is not installed")
    version = subprocess.run([LOADER, "--version"], capture_output=True, text=True, check=True).stdout
    made = TEMPLATES / re.sub(r"[^\w.-]+", "_", version.strip())
    TEMPLATES.mkdir(parents=True, exist_ok=True)
    with open(TEMPLATES / "lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not made.exists():
            new = made.with_suffix(".new")
            shutil.rmtree(new, ignore_errors=True)
            new.mkdir()
            run(new, "wineboot", "--init", check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            subprocess.run([SERVER, "--wait"], env={**os.environ, **variables(new)}, check=True)
            new.rename(made)
    return made


def hold_server_folder():
    """Keeps the folder in which all of Wine's servers have theirs. The last one to end would take it away while another
    one starts, which then fails."""
    folder = pathlib.Path(f"/tmp/.wine-{os.getuid()}")
    folder.mkdir(mode=0o700, exist_ok=True)
    (folder / "held").mkdir(mode=0o700, exist_ok=True)


def copy(folder):
    """Makes a fresh folder for Wine: its own registry and its own files beside the template's system."""
    hold_server_folder()
    made = template()
    folder.mkdir(parents=True)
    for pattern in REGISTRY:
        for file in made.glob(pattern):
            shutil.copy2(file, folder)
    drive = folder / "drive_c"
    drive.mkdir()
    (drive / "windows").symlink_to(made / "drive_c" / "windows")
    devices = folder / "dosdevices"
    devices.mkdir()
    (devices / "c:").symlink_to("../drive_c")
    (devices / "z:").symlink_to("/")


def main(program, *arguments):
    with tempfile.TemporaryDirectory(prefix="wine-", ignore_cleanup_errors=True) as home:
        folder = pathlib.Path(home, "wine")
        copy(folder)
        # Windows then can be made, if not seen.
        with open(folder / "user.reg", "a") as registry:
            registry.write('\n[Software\\\\Wine\\\\Drivers]\n"Graphics"="null"\n')
        try:
            return run(folder, program, *arguments).returncode
        finally:
            end(folder)


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit("usage: wine.py PROGRAM ARGUMENTS...")
    sys.exit(main(*sys.argv[1:]))
