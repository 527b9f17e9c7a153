"""Figures of the real program on a display, as JSON: scripts/virtual-display python3 benchmarks/window_figures.py"""

import json
import os
import random
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[1]
BIN = PROJECT / "build/bin"
DATA = "GIOSTAM/navdata"
FULL_SIZE = {"wpNavFIX.txt": 190001, "wpNavAID.txt": 20001, "wpNavAPT.txt": 14401}
STORED_PROCEDURES = 20000
ROWS = 201
STARTS = 15


class Machine:
    """A folder with the program and a simulator, with the accessibility bus off as on most desktops."""

    def __init__(self, folder, full_tables, procedures=0):
        self.program = folder / "bin/tarvex"
        self.data = data = folder / "FS2000" / DATA
        for kind in ("Sids", "Stars", "Approaches"):
            (data / kind).mkdir(parents=True)
        for name, lines in FULL_SIZE.items():
            sample = (PROJECT / "sample/FS2000" / DATA / name).read_bytes().splitlines(keepends=True)
            entries = [line for line in sample if not line.startswith(b";")]
            repeated = (entries * (lines // len(entries) + 1))[:lines] if full_tables else []
            (data / name).write_bytes(b"".join(repeated))
        letters = random.Random(767)
        for index in range(procedures):
            code = "".join(letters.choices("ABCDEFGHIJKLMNOPQRSTUVWXYZ", k=3))
            (data / f"Sids/K{code}-P{index:05}.wsd").touch()
        self.program.parent.mkdir()
        shutil.copy2(BIN / "tarvex", self.program)
        (folder / "bin/Tarvex.INI").write_bytes(f"{folder}/FS2000\r\nN\r\nW\r\nW\r\n".encode())
        home = str(folder)
        self.environment = os.environ | {"HOME": home, "XDG_CONFIG_HOME": home, "WINEPREFIX": home + "/none"}
        self.environment["NO_AT_BRIDGE"] = "1"

    def start(self):
        """Milliseconds to the painted menu, and the peak of memory in MiB."""
        return shown(self.program, self.environment)


def shown(program, environment=None):
    run = subprocess.run([BIN / "window_time", program], env=environment, check=True, capture_output=True, text=True)
    milliseconds, kibibytes = run.stdout.split()
    return float(milliseconds), int(kibibytes) / 1024


def starts(figures, folder):
    """Full and empty tables by turns, so that both meet the same machine."""
    full = Machine(folder / "full", full_tables=True)
    empty = Machine(folder / "empty", full_tables=False)
    runs = [(full.start(), empty.start(), shown(BIN / "empty_window", empty.environment)) for _ in range(STARTS)]
    for index, name in enumerate(("full", "empty", "window")):
        figures[f"start_{name}_ms"] = statistics.median(run[index][0] for run in runs)
        figures[f"peak_{name}_mib"] = statistics.median(run[index][1] for run in runs)


def processor_time(process):
    return int(Path(f"/proc/{process.pid}/schedstat").read_text().split()[0]) / 1e6


def idle(process):
    """Waits until the program has nothing left to do; gives the milliseconds that it has worked so far."""
    before = -1.0
    while (now := processor_time(process)) != before:
        before = now
        time.sleep(0.2)
    return now


def xdotool(*arguments):
    run = subprocess.run(["xdotool", *map(str, arguments)], check=True, capture_output=True, text=True)
    return run.stdout


def key(name):
    xdotool("key", name)


def turn(button):
    xdotool("click", button)


def geometry_of_active():
    """The number of the window that has the keyboard, its width and its height."""
    lines = xdotool("getactivewindow", "getwindowgeometry", "--shell").splitlines()
    values = dict(line.split("=") for line in lines)
    return values["WINDOW"], int(values["WIDTH"]), int(values["HEIGHT"])


def slowest(process, act, arguments):
    """Milliseconds of work for the slowest of the acts."""
    worst = 0.0
    for each in arguments:
        before = idle(process)
        act(each)
        worst = max(worst, idle(process) - before)
    return worst


def wait_for(caption):
    xdotool("search", "--sync", "--onlyvisible", "--name", caption, "windowfocus", "--sync")


def open_picker(process):
    wait_for("^Tarvex$")
    idle(process)
    key("Tab")  # on to the button behind the first one, which is for the departures stored
    key("space")
    wait_for("^Procedure Select$")
    idle(process)


def picker(figures, folder):
    """Processor time of the window for each letter typed, all that it paints for it included."""
    machine = Machine(folder / "picker", full_tables=False, procedures=STORED_PROCEDURES)
    process = subprocess.Popen([machine.program], env=machine.environment)
    try:
        open_picker(process)
        key("Tab")
        letters = ["K", "J", "F", "K", "BackSpace", "BackSpace", "BackSpace", "BackSpace"]
        figures["picker_letter_ms"] = slowest(process, key, letters)
    finally:
        process.kill()
        process.wait()


def write_full_procedure(machine):
    """A departure of as many rows as there can be, round a place with many entries of the tables."""
    rows = [
        f"W,FIX{row:03},,0,{33 + row % 20 / 10:.6f},{-118 + row / 100:.6f},0,250,3000,9000,3,\r\n" for row in range(ROWS)
    ]
    text = "\r\n" + "".join(rows) + "\r\nEnd of Terminal Procedure\r\n"
    (machine.data / "Sids/KSAN-FULL1.wsd").write_bytes(text.encode())


def editor(figures, folder):
    """Processor time of the window for a character typed and for a turn of the wheel, painting included."""
    machine = Machine(folder / "editor", full_tables=True)
    write_full_procedure(machine)
    process = subprocess.Popen([machine.program], env=machine.environment)
    try:
        open_picker(process)
        key("K")
        key("Return")
        wait_for("^Modify a Procedure$")
        idle(process)
        worst = 0.0
        for text in ("F", "33", "5", "117", "3"):  # a name and a position, which the chart shows as they come
            worst = max(worst, slowest(process, key, text))
            key("Tab")
        figures["editor_key_ms"] = worst
        window, width, height = geometry_of_active()
        xdotool("mousemove", "--window", window, int(width * 0.6), int(height * 0.7))  # into the chart
        figures["editor_wheel_ms"] = slowest(process, turn, [4, 4, 4, 4, 5, 5, 5, 5, 5, 5])  # in and out
    finally:
        process.kill()
        process.wait()


def main():
    figures = {}
    with tempfile.TemporaryDirectory(prefix="tarvex-") as folder:
        starts(figures, Path(folder))
        picker(figures, Path(folder))
        editor(figures, Path(folder))
    json.dump(figures, sys.stdout)


main()
