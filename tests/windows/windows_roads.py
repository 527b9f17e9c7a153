"""The Windows program under Wine, driven by keyboard and mouse on a virtual display.

    windows_roads.py TARVEX.EXE HOLD_FILE.EXE SAMPLE_FOLDER PICTURES [NATIVE_PROGRAM]

Every road starts from a simulator folder of its own in a Wine prefix that is thrown away, and ends with a look at
what is on disk, byte for byte. PICTURES gets a picture of the display for each road.
"""

import contextlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

WINE = "/usr/lib/wine/wine64"
WINESERVER = "/usr/lib/wine/wineserver64"
REGISTRY_KEY = r"HKLM\Software\Microsoft\Microsoft Games\Flight Simulator\7.0"
STAR = "KJFK-CAMRN4.wst"
MENU, PICKER, EDITOR, FOLDER = "Tarvex", "Procedure Select", "Modify a Procedure", " "
NEW_PROCEDURE = "Create a Procedure"
# Colours of pictures: the selected row, a fix of the tables, what is no row yet.
SELECTED, FIX, DRAFT = (bytes.fromhex(colour) for colour in ("c8381b", "8792a0", "7b3fb5"))
HEADER = re.compile(rb"; This Terminal Procedure generated on \d{1,2}/\d{1,2}/\d{2,4} by Tarvex 2\.35\r\n")


class RoadFailed(Exception):
    pass


def require(condition, what):
    if not condition:
        raise RoadFailed(what)


def run(*command):
    return subprocess.run(command, capture_output=True, text=True).stdout


def poll(look, what, seconds=60):
    """Looks until it sees something; no fixed waits."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        seen = look()
        if seen:
            return seen
        time.sleep(0.05)
    raise RoadFailed(f"no {what} within {seconds} s")


def window_titled(title):
    found = run("xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(title)}$").split()
    return found[0] if found else None


def picture_of(window):
    """A digest of what the window shows; empty while it shows nothing."""
    image = subprocess.run(["import", "-window", window, "-format", "%k %#", "info:"], capture_output=True, text=True)
    colours, _, digest = image.stdout.partition(" ")
    return digest if colours.isdigit() and int(colours) > 2 else ""


def wait_for(title):
    """The window of that title, once it takes the keys and is painted."""
    def ready():
        window = window_titled(title)
        if not window or run("xdotool", "getactivewindow").strip() != window:
            return None
        before = picture_of(window)
        time.sleep(0.2)
        return window if before and before == picture_of(window) else None
    return poll(ready, f"active window {title!r}")


def keys(*names):
    for name in names:
        subprocess.run(["xdotool", "key", "--delay", "30", name], check=True)
        time.sleep(0.05)


def click(window, x, y):
    subprocess.run(["xdotool", "mousemove", "--sync", "--window", window, str(x), str(y), "click", "1"], check=True)


class Machine:
    """A Wine prefix with the program in C:\\Tarvex and a simulator folder."""

    def __init__(self, place, exe, sample):
        self.drive = place / "prefix" / "drive_c"
        self.exe = exe
        self.sample = sample
        self.home = self.drive / "Tarvex"

    def set_up(self, simulator=None):
        shutil.rmtree(self.home, ignore_errors=True)
        self.home.mkdir(parents=True)
        shutil.copy(self.exe, self.home / "tarvex.exe")
        self.simulator = simulator or self.drive / "FS2000"
        shutil.rmtree(self.simulator, ignore_errors=True)
        shutil.copytree(self.sample, self.simulator)

    def settings(self, folder):
        (self.home / "Tarvex.INI").write_bytes(folder + b"\r\nN\r\nW\r\nW\r\n")

    def settings_now(self):
        return (self.home / "Tarvex.INI").read_bytes()

    def star(self):
        return self.simulator / "GIOSTAM" / "navdata" / "Stars" / STAR

    @contextlib.contextmanager
    def program(self, *command, cwd=None):
        process = subprocess.Popen(command or (WINE, "tarvex.exe"), cwd=cwd or self.home,
                                   stderr=subprocess.PIPE, text=True)
        try:
            yield process
        except BaseException:
            run("import", "-window", "root", f"{PICTURES}/failed.png")
            raise
        finally:
            process.kill()
            subprocess.run([WINESERVER, "-k"], check=False)
            process.wait()
            poll(lambda: not window_titled(MENU), "end of the windows")


def registry(*arguments):
    subprocess.run([WINE, "reg", *arguments, "/reg:32", "/f"], check=True, capture_output=True)


def leave_by_menu(process, tabs):
    """`tabs` leads from the button that has the focus to EXIT."""
    wait_for(MENU)
    keys(*["Tab"] * tabs, "Return")
    poll(lambda: process.poll() is not None, "end of the program")
    require(process.returncode == 0, f"exit status {process.returncode}")


def open_star(first_file=(90, 51)):
    """`first_file` is where the first line of the picker's list stands in its window."""
    wait_for(MENU)
    keys("Tab", "Tab", "Return")
    picker = wait_for(PICKER)
    keys("Tab")
    subprocess.run(["xdotool", "type", "--delay", "30", "kjfk"], check=True)
    time.sleep(0.3)
    keys("shift+Tab", "Home", "Down", "Up")  # moving along the names picks none
    click(picker, *first_file)


def set_airspeed_of_first_row(speed):
    keys(*["Tab"] * 10)  # from the fix's name to the list
    keys("Home", "Down", "Up")
    keys(*["shift+Tab"] * 5)  # to the airspeed, which is selected whole
    subprocess.run(["xdotool", "type", "--delay", "30", speed], check=True)
    keys(*["Tab"] * 4)  # to Modify
    keys("Return")


def changed(content, speed):
    """The file as a save must leave it, from the second line on, with the airspeed of the first row changed."""
    lines = content.split(b"\r\n")
    row = next(i for i, line in enumerate(lines) if line.startswith(b"W,"))
    items = lines[row].split(b",")
    items[7] = speed.encode()
    lines[row] = b",".join(items)
    return b"\r\n".join(lines[1:])


def change_and_save(machine, picture, **where):
    before = machine.star().read_bytes()
    open_star(**where)
    wait_for(EDITOR)
    set_airspeed_of_first_row("211")
    picture()
    keys("ctrl+s")
    wait_for(MENU)
    after = machine.star().read_bytes()
    require(HEADER.match(after), f"first line {after[:80]!r}")
    require(after.split(b"\r\n", 1)[1] == changed(before, "211"), f"saved file {after!r}")


def first_start_with_registry(machine, picture):
    machine.set_up()
    registry("add", REGISTRY_KEY, "/v", "path", "/d", r"C:\FS2000")
    with machine.program() as process:
        wait_for(MENU)
        picture()
        require(machine.settings_now() == b"C:\\FS2000\r\nN\r\nW\r\nW\r\n", "the settings file")
        leave_by_menu(process, 4)


def first_start_without_registry(machine, picture):
    machine.set_up()
    registry("delete", REGISTRY_KEY, "/v", "path")
    with machine.program():
        wait_for(FOLDER)
        keys("Tab", "Up", "Return")  # from C:\Tarvex up to C:\
        keys("Down")  # FS2000, the first folder below it
        picture()
        keys("Tab", "Return")
        wait_for(MENU)
        require(machine.settings_now() == b"C:\\FS2000\r\nN\r\nW\r\n", f"settings {machine.settings_now()!r}")


def stored_star_changed_and_saved(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    with machine.program() as process:
        change_and_save(machine, picture)
        leave_by_menu(process, 2)


def folder_with_blanks_and_letters(machine, picture):
    machine.set_up(machine.drive / "Spiele äö" / "FS 2000")
    machine.settings("C:\\Spiele äö\\FS 2000".encode("cp1252"))
    with machine.program():
        change_and_save(machine, picture)


def drive_root(machine, picture):
    root = machine.drive.parent / "root"
    machine.set_up(root)
    drive = machine.drive.parent / "dosdevices" / "e:"
    drive.unlink(missing_ok=True)
    drive.symlink_to("../root")
    shutil.copy(machine.exe, root / "tarvex.exe")
    (root / "Tarvex.INI").write_bytes(b"E:\r\nN\r\nW\r\nW\r\n")
    with machine.program(WINE, r"E:\tarvex.exe"):
        change_and_save(machine, picture)
        require((root / "Tarvex.INI").read_bytes() == b"E:\r\nN\r\nW\r\nW\r\n", "the settings at the root")


def locked_file(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    before = machine.star().read_bytes()
    shutil.copy(HOLD_FILE, machine.home)
    with machine.program() as process:
        wait_for(MENU)
        holder = subprocess.Popen([WINE, "hold_file.exe", rf"C:\FS2000\GIOSTAM\navdata\Stars\{STAR}"],
                                  cwd=machine.home, stdout=subprocess.PIPE, text=True)
        require(holder.stdout.readline().strip() == "held", "the file could not be locked")
        open_star()
        wait_for("Procedure not opened.")
        picture()
        keys("Return")
        wait_for(MENU)
        holder.kill()
        require(process.poll() is None, "the program has ended")
        require(machine.star().read_bytes() == before, "the locked file has changed")


def read_only_folder(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    stars = machine.star().parent
    content = {file.name: file.read_bytes() for file in stars.iterdir()}
    if subprocess.run(["mount", "-t", "tmpfs", "tmpfs", stars], capture_output=True).returncode != 0:
        return "left out: no file system can be mounted here"
    try:
        for name, text in content.items():
            (stars / name).write_bytes(text)
        subprocess.run(["mount", "-o", "remount,ro", stars], check=True)
        with machine.program() as process:
            open_star()
            wait_for(EDITOR)
            keys("ctrl+s")
            wait_for("Program termination happens now.")
            picture()
            keys("Return")
            poll(lambda: process.poll() is not None, "end of the program")
            require(process.returncode == 1, f"exit status {process.returncode}")
        require(machine.star().read_bytes() == content[STAR], "the read-only file has changed")
    finally:
        subprocess.run(["umount", "-l", stars], check=False)
    return None


def may_shut_down():
    return subprocess.run([WINE, "wineboot", "--end-session"], capture_output=True, timeout=60).returncode == 0


def shutting_down(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    with machine.program() as process:
        wait_for(MENU)
        keys("Return")
        wait_for(NEW_PROCEDURE)
        require(not may_shut_down(), "Windows shuts down under an open procedure")
        picture()
        require(process.poll() is None and window_titled(NEW_PROCEDURE), "the procedure is closed")
    with machine.program() as process:
        wait_for(MENU)
        require(may_shut_down(), "the menu alone keeps Windows from shutting down")
        poll(lambda: process.poll() is not None, "end of the program")


def place_of(window):
    """Left, top, width and height on the screen."""
    shell = run("xdotool", "getwindowgeometry", "--shell", window)
    return [int(re.search(rf"^{name}=(-?\d+)", shell, re.MULTILINE)[1]) for name in ("X", "Y", "WIDTH", "HEIGHT")]


def double_click_on_the_way_out(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    with machine.program() as process:
        wait_for(MENU)
        keys("Return")
        editor = wait_for(NEW_PROCEDURE)
        left, top, width, height = place_of(editor)
        way_out = left + width - 225, top + height - 30  # "No Changes Just Exit"
        keys(*["shift+Tab"] * 10, "Return")  # Find Fix
        search = poll(lambda: window_titled("Waypoint"), "search")
        poll(lambda: picture_of(search), "painted search")
        _, _, width, height = place_of(search)
        # Its "Oops Go Back" comes to lie over the editor's way out.
        run("xdotool", "windowmove", "--sync", search, str(way_out[0] - width // 4), str(way_out[1] - height + 10))
        picture()
        run("xdotool", "mousemove", "--sync", "--window", search, str(width // 4), str(height - 25),
            "click", "--repeat", "2", "--delay", "80", "1")
        poll(lambda: not window_titled("Waypoint"), "end of the search")
        time.sleep(0.5)
        require(window_titled(NEW_PROCEDURE) and not window_titled(MENU), "the double click went through")


def selected_symbol(window):
    """Where the chart shows the selected row, once it stays there: the middle of the longest run of its colour."""
    before = None
    while True:
        place = middle_of_run(window, SELECTED)
        if place == before:
            return place
        before = place
        time.sleep(0.3)


def middle_of_run(window, colour):
    image = subprocess.run(["import", "-window", window, "-depth", "8", "ppm:-"], capture_output=True).stdout
    _, size, _, pixels = image.split(b"\n", 3)
    width = int(size.split()[0])
    runs = re.finditer(rb"(?:%s){5,}" % re.escape(colour), pixels)
    longest = max(runs, key=lambda run: run.end() - run.start(), default=None)
    if longest is None or longest.start() % 3:
        return None
    middle = (longest.start() + longest.end()) // 6
    return middle % width, middle // width


def fix_taken_from_the_chart(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    before = machine.star().read_bytes()
    with machine.program():
        open_star()
        editor = wait_for(EDITOR)
        symbol = poll(lambda: middle_of_run(editor, FIX), "fix in the chart")
        run("xdotool", "mousemove", "--sync", "--window", editor, *map(str, symbol),
            "click", "--repeat", "2", "--delay", "80", "1")
        time.sleep(1)  # the boxes are filled, and the waypoint is drawn where it would be
        poll(lambda: middle_of_run(editor, DRAFT), "waypoint drawn from the boxes")
        picture()
        keys("Tab", "Tab", "Return")  # from the altitude over the airspeed to Add
        time.sleep(0.5)
        keys("ctrl+s")
        wait_for(MENU)
        rows = machine.star().read_bytes().split(b"\r\n")
        added = [row.split(b",") for row in rows if row.startswith(b"W,") and row not in before]
        require(len(added) == 1, f"rows added: {added}")
        fixes = (machine.simulator / "GIOSTAM/navdata/wpNavFIX.txt").read_bytes().split(b"\n")
        own = [fix for fix in fixes if fix[24:29].strip() == added[0][1]]
        require(any(abs(float(fix[29:39]) - float(added[0][4])) < 2e-6 and
                    abs(float(fix[39:50]) - float(added[0][5])) < 2e-6 for fix in own), f"{added[0]} is none of {own}")


def click_on_the_chart(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    before = machine.star().read_bytes()
    with machine.program():
        open_star()
        editor = wait_for(EDITOR)
        keys(*["Tab"] * 10, "Home", "Down", "Down")
        symbol = poll(lambda: selected_symbol(editor), "selected row in the chart")
        keys("Up", "Up")
        poll(lambda: selected_symbol(editor) != symbol, "another selected row")
        click(editor, *symbol)
        poll(lambda: selected_symbol(editor) == symbol, "row selected by a click on its symbol")
        picture()
        keys("Delete", "ctrl+s")
        wait_for(MENU)
        rest = b"\r\n".join(line for line in before.split(b"\r\n")[1:] if not line.startswith(b"W,CAMRN,"))
        after = machine.star().read_bytes()
        require(after.split(b"\r\n", 1)[1] == rest, f"saved file {after!r}")


def rows_go_together_by_keys(machine, picture):
    machine.set_up()
    machine.settings(rb"C:\FS2000")
    rows = lambda: [row for row in machine.star().read_bytes().split(b"\r\n") if row.startswith(b"W,")]  # noqa: E731
    before = rows()
    with machine.program():
        open_star()
        wait_for(EDITOR)
        keys("ctrl+l", "Home", "ctrl+3", "shift+Down", "ctrl+Down")
        time.sleep(0.5)
        picture()
        keys("ctrl+s")
        wait_for(MENU)
    require(rows() == [before[2], before[0], before[1], *before[3:]], f"rows as they are: {rows()}")


def native_program_beside_the_prefix(machine, picture):
    machine.set_up()
    registry("add", REGISTRY_KEY, "/v", "path", "/d", r"c:\fs2000")
    subprocess.run([WINESERVER, "-w"], check=False, timeout=60)  # the registry is on disk once Wine has ended
    native = machine.home / "native"
    native.mkdir()
    shutil.copy(NATIVE, native / "tarvex")
    with machine.program(str(native / "tarvex"), cwd=native):
        wait_for(MENU)
        require((native / "Tarvex.INI").read_bytes() == b"C:\\FS2000\r\nN\r\nW\r\nW\r\n", "the settings file")
        change_and_save(machine, picture, first_file=(90, 66))


ROADS = [
    first_start_with_registry,
    first_start_without_registry,
    stored_star_changed_and_saved,
    folder_with_blanks_and_letters,
    drive_root,
    locked_file,
    read_only_folder,
    shutting_down,
    double_click_on_the_way_out,
    click_on_the_chart,
    fix_taken_from_the_chart,
    rows_go_together_by_keys,
    native_program_beside_the_prefix,
]


def main():
    global HOLD_FILE, NATIVE, PICTURES
    exe, HOLD_FILE, sample, PICTURES = (Path(argument).resolve() for argument in sys.argv[1:5])
    NATIVE = Path(sys.argv[5]).resolve() if len(sys.argv) > 5 else None
    only = os.environ.get("TARVEX_ROAD", "")
    PICTURES.mkdir(parents=True, exist_ok=True)
    passed = failed = skipped = 0
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as place:
        os.environ.update(WINEPREFIX=f"{place}/prefix", WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=",
                          HOME=place, XDG_CONFIG_HOME=f"{place}/config")
        subprocess.run([WINE, "wineboot", "-i"], check=True, capture_output=True, timeout=300)
        machine = Machine(Path(place), exe, sample)
        for road in ROADS:
            if only not in road.__name__ or (road is native_program_beside_the_prefix and NATIVE is None):
                continue
            picture = lambda name=road.__name__: run("import", "-window", "root", f"{PICTURES}/{name}.png")
            try:
                note = road(machine, picture)
                skipped += note is not None
                passed += note is None
                print(f"{'PASS' if note is None else 'SKIP'} {road.__name__} {note or ''}", flush=True)
            except (RoadFailed, OSError, subprocess.SubprocessError) as fault:
                failed += 1
                with contextlib.suppress(OSError):
                    (PICTURES / "failed.png").rename(PICTURES / f"{road.__name__}-failed.png")
                print(f"FAIL {road.__name__}: {fault}", flush=True)
    print(f"{passed} passed, {failed} failed, {skipped} skipped")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
