"""Fetches the programs, modules and fonts that the pictures need."""

import importlib
import os
import shutil
import subprocess
import sys

PROGRAMS = {"rsvg-convert": "librsvg2-bin", "povray": "povray", "fc-match": "fontconfig"}
MODULES = {"numpy": "python3-numpy", "PIL": "python3-pil"}
FONT, FONT_PACKAGE = "Liberation Serif", "fonts-liberation2"


def importable(name):
    try:
        importlib.import_module(name)
    except ImportError:
        return False
    return True


def font_missing():
    """A missing font is silently replaced by another, so it must be asked for."""
    if not shutil.which("fc-match"):
        return True
    found = subprocess.run(["fc-match", "-f", "%{family}", FONT], stdout=subprocess.PIPE)
    return FONT not in found.stdout.decode()


def missing(programs):
    packages = [PROGRAMS[name] for name in programs if not shutil.which(name)]
    packages += [package for name, package in MODULES.items()
                 if not importable(name)]
    if programs and font_missing():
        packages.append(FONT_PACKAGE)
    return packages


def ensure(programs):
    """Installs what is missing through apt, or says in one line what to install."""
    packages = missing(programs)
    if not packages:
        return
    if not shutil.which("apt-get"):
        sys.exit("rebuild: install what Debian calls " + " ".join(packages))
    root = [] if os.geteuid() == 0 else ["sudo"]
    for step in (["update"], ["install", "-y", "--no-install-recommends", *packages]):
        command = [*root, "apt-get", *step]
        print("rebuild: running " + " ".join(command), flush=True)
        if subprocess.run(command).returncode:
            sys.exit("rebuild: could not install " + " ".join(packages))
    importlib.invalidate_caches()
    if missing(programs):
        sys.exit("rebuild: still missing " + " ".join(missing(programs)))
