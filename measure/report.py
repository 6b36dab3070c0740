#!/usr/bin/python3
"""Measures the built game and writes the figures into README's table.

Everything that is compared is measured in the same run, turn and turn about, and given as the median with the range of
the middle half.
"""

import pathlib
import re
import statistics
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tools" / "display"))
sys.dont_write_bytecode = True

from desk import Desk, start, stop  # noqa: E402
from launch import Windows  # noqa: E402
import wine  # noqa: E402

README = ROOT / "README.md"
TABLE = re.compile(r"(?<=<!-- figures -->\n).*?(?=<!-- /figures -->)", re.S)

STARTS = 15
IDLE_SECONDS = 10
# Fanfare, ring-out, and the time for which the sound device is held after it.
UNTIL_SILENT = 4.4 + 0.5 + 3 + 1
# A point inside both windows at the upper left of the screen where the ground shows.
GROUND_AT = (316, 255)
GROUND = (0xFF, 0xFF, 0x80)


def figure(values, unit="", digits=2):
    """Median, and the quarter points of the values around it."""
    middle = statistics.median(values)
    low, _, high = statistics.quantiles(values, n=4) if len(values) > 3 else (min(values), middle, max(values))
    return f"{middle:.{digits}f}{unit} ({low:.{digits}f} to {high:.{digits}f})"


def ratio(values, base):
    return f"{statistics.median(values) / statistics.median(base):.2f}"


def lines_of(command, desk=None, **variables):
    """Runs a program that prints a name and a figure on each line; the figures by name."""
    if desk:
        file = pathlib.Path(desk.home) / "figures"
        desk.start(["sh", "-c", '"$0" > "$1"', str(command), str(file)], **variables).wait()
        text = file.read_text()
    else:
        text = subprocess.run([str(command)], check=True, capture_output=True, text=True).stdout
    found = {}
    for line in text.splitlines():
        name, value = line.split()
        found.setdefault(name, []).append(float(value))
    return found


class Running:
    """A program on a display of its own without a window manager, at the upper left of the screen."""

    def __init__(self, desk, program):
        self.prepare(desk)
        begin = time.monotonic()
        self.process = self.start_program(desk, program)
        while desk.picture(*GROUND_AT, 1, 1).getpixel((0, 0)) != GROUND:
            if self.process.poll() is not None:
                sys.exit(f"{program} has ended before its first frame")
        self.first_paint = 1000 * (time.monotonic() - begin)

    def prepare(self, desk):
        place = pathlib.Path(desk.home) / "config" / "Thistle and Lantern" / "Settings.conf"
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_text("[General]\nMainLeft=0\nMainTop=0\n")

    def start_program(self, desk, program):
        return desk.start([str(program)], quiet=True)

    def memory(self):
        """Proportional set size in megabytes."""
        text = pathlib.Path(f"/proc/{self.process.pid}/smaps_rollup").read_text()
        return int(re.search(r"^Pss:\s+(\d+)", text, re.M)[1]) / 1024

    def effort(self):
        """Processor time in clock ticks, and how often a thread has been woken."""
        ticks = sum(map(int, pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()[11:13]))
        wakes = sum(int(count) for status in pathlib.Path(f"/proc/{self.process.pid}/task").glob("*/status")
                    for count in re.findall(r"ctxt_switches:\s+(\d+)", status.read_text()))
        return ticks, wakes

    def idle(self):
        before = self.effort()
        time.sleep(IDLE_SECONDS)
        return [after - then for after, then in zip(self.effort(), before)]

    def stop(self):
        stop(self.process)


class RunningOnWine(Running):
    """The same under Wine, whose server is there already."""

    def prepare(self, desk):
        self.windows = Windows(desk)
        self.windows.write_settings({"MainLeft": "0", "MainTop": "0"})

    def start_program(self, desk, program):
        return desk.start([wine.LOADER, str(program)], quiet=True, **wine.variables(self.windows.folder))


def measure_start(game, bare, kind=Running, manager=None):
    paint, memory = {game: [], bare: []}, {game: [], bare: []}
    for _ in range(STARTS):
        for program in (game, bare):
            with Desk(window_manager=manager) as desk:
                run = kind(desk, program)
                paint[program].append(run.first_paint)
                time.sleep(1)
                memory[program].append(run.memory())
                run.stop()
    return [("Start to first painted frame, ms", figure(paint[game], digits=0), figure(paint[bare], digits=0),
             ratio(paint[game], paint[bare])),
            ("Memory (PSS), MB", figure(memory[game], digits=1), figure(memory[bare], digits=1),
             ratio(memory[game], memory[bare]))]


def measure_idle(game, kind=Running):
    rows = []
    with Desk() as desk:
        run = kind(desk, game)
        time.sleep(UNTIL_SILENT)
        for form in ("Opening form", "Table"):
            ticks, wakes = run.idle()
            rows.append((f"{form}, idle for {IDLE_SECONDS} s: processor ticks, wake-ups", f"{ticks}, {wakes}", "0, 0", ""))
            desk.key("Return")
            time.sleep(2)
        run.stop()
    return rows


def measure_screen(program, busy):
    rows = []
    for scale in (1, 2):
        with Desk() as desk:
            found = lines_of(program, desk, QT_SCALE_FACTOR=str(scale))
        rows += [(f"A drag step at {scale}x, ms of processor", figure(found["drag_step_ms"], digits=3), "", ""),
                 (f"Repainted in a drag step at {scale}x, against old and new place", figure(found["drag_area_ratio"]),
                  "1", ""),
                 (f"A picture change in a throw at {scale}x, ms of processor", figure(found["change_ms"], digits=3),
                  figure(found["bare_change_ms"], digits=3), ratio(found["change_ms"], found["bare_change_ms"]))]
        if scale == 1:
            calm = found["turn_over_percent"]
    loads = [start([sys.executable, "-c", "while True: pass"]) for _ in range(busy)]
    with Desk() as desk:
        loaded = lines_of(program, desk)["turn_over_percent"]
    for load in loads:
        stop(load)
    return rows + [("A turn's length over the sum of its waits, %", figure(calm), "0", ""),
                   ("The same with every processor busy, %", figure(loaded), "0", "")]


def measure_rules(program):
    found = lines_of(program)
    base = found["10"]
    return [(f"Whole turns a second with £{pounds} held", figure(values, digits=0), "", ratio(values, base))
            for pounds, values in found.items()]


def measure_size(game):
    carried = {name: sum(file.stat().st_size for file in ROOT.glob(pattern)) for name, pattern in (
        ("pictures", "Graphics/pictures/*.png"), ("recordings", "sounds/recordings/*.wav"),
        ("fonts", "desktop/fonts/*.ttf"))}
    parts = ", ".join(f"{name} {size / 1e6:.1f}" for name, size in carried.items())
    return [("Size of the program, MB", f"{game.stat().st_size / 1e6:.1f}", "", ""),
            ("of which it carries, MB", parts, "", "")]


def measure_windows(build):
    """The program for Windows against the smallest one of its kind, both under Wine."""
    game, bare = build / "thistle-and-lantern.exe", build / "measure" / "measure_bare_window.exe"
    listed = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", game], capture_output=True, text=True, check=True).stdout
    imports = sorted(name.removesuffix(".dll") for name in set(re.findall(r"DLL Name: (\S+)", listed)))
    rows = measure_start(game, bare, RunningOnWine, "openbox") + measure_idle(game, RunningOnWine)
    rows.append(("Size of the program, MB", f"{game.stat().st_size / 1e6:.2f}", f"{bare.stat().st_size / 1e6:.2f}", ""))
    rows.append(("Libraries that it needs, all Windows' own", " ".join(imports), "", ""))
    return [(f"Windows: {what[0].lower() + what[1:]}", *figures) for what, *figures in rows]


def main():
    build = pathlib.Path(sys.argv[1])
    game = build / "thistle-and-lantern"
    rows = [("What", "The game", "Bare window, or aim", "Ratio"), ("---", "---", "---", "---")]
    rows += measure_start(game, build / "measure" / "measure_bare_window")
    rows += measure_idle(game)
    rows += measure_screen(build / "measure" / "measure_screen", busy=2)
    rows += measure_rules(build / "measure" / "measure_rules")
    rows += measure_size(game)
    rows += measure_windows(pathlib.Path(sys.argv[2]))
    table = "".join("| " + " | ".join(row) + " |\n" for row in rows)
    print(table)
    README.write_text(TABLE.sub(lambda _: table, README.read_text()))


if __name__ == "__main__":
    main()
