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
STARTS = 15


class Machine:
    """A folder with the program and a simulator, with the accessibility bus off as on most desktops."""

    def __init__(self, folder, full_tables, procedures=0):
        self.program = folder / "bin/tarvex"
        data = folder / "FS2000" / DATA
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


def key(name):
    subprocess.run(["xdotool", "key", name], check=True)


def wait_for(caption):
    subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", caption, "windowfocus", "--sync"],
                   check=True, stdout=subprocess.DEVNULL)


def picker(figures, folder):
    """Processor time of the window for each letter typed, all that it paints for it included."""
    machine = Machine(folder / "picker", full_tables=False, procedures=STORED_PROCEDURES)
    process = subprocess.Popen([machine.program], env=machine.environment)
    try:
        wait_for("^Tarvex$")
        idle(process)
        key("Tab")  # on to the button behind the first one, which is for the departures stored
        key("space")
        wait_for("^Procedure Select$")
        idle(process)
        key("Tab")
        worst = 0.0
        for letter in ("K", "J", "F", "K", "BackSpace", "BackSpace", "BackSpace", "BackSpace"):
            before = idle(process)
            key(letter)
            worst = max(worst, idle(process) - before)
        figures["picker_letter_ms"] = worst
    finally:
        process.kill()
        process.wait()


def main():
    figures = {}
    with tempfile.TemporaryDirectory(prefix="tarvex-") as folder:
        starts(figures, Path(folder))
        picker(figures, Path(folder))
    json.dump(figures, sys.stdout)


main()
