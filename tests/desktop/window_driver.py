"""Drives the real program: finds controls by their names over the accessibility bus, works them with mouse and
keyboard, and reads what they show. Everything that takes its time is polled for, with an end."""

import datetime
import os
import shutil
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PROJECT = Path(__file__).resolve().parents[2]
PATIENCE = float(os.environ.get("TARVEX_PATIENCE", "30"))  # seconds until a wait counts as failed


def until(condition, what, patience=PATIENCE):
    """Returns the first true value of the condition. Objects may vanish while they are looked at."""
    end = time.monotonic() + patience
    while True:
        try:
            value = condition()
        except GLib.Error:
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited {patience:.0f} s in vain for {what}")
        time.sleep(0.02)


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def descendants(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child
            yield from descendants(child)


def is_in(state, node):
    return node.get_state_set().contains(state)


class Machine:
    """A folder with the program, a copy of the sample simulator and a home of its own."""

    def __init__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="tarvex-"))
        self.bin = self.folder / "bin"
        self.bin.mkdir()
        shutil.copy2(os.environ.get("TARVEX_PROGRAM", PROJECT / "build/bin/tarvex"), self.bin / "tarvex")
        self.simulator = self.folder / "FS2000"
        shutil.copytree(PROJECT / "sample/FS2000", self.simulator)
        self.data = self.simulator / "GIOSTAM/navdata"
        self.settings = self.bin / "Tarvex.INI"
        (self.folder / "home").mkdir()

    def put_settings(self, latitude="N", longitude="W"):
        self.settings.write_bytes(f"{self.simulator}\r\n{latitude}\r\n{longitude}\r\nW\r\n".encode())

    def start(self):
        return Program(self)

    def remove(self):
        shutil.rmtree(self.folder)


class Program:
    """The running program."""

    def __init__(self, machine):
        home = str(machine.folder / "home")
        self.process = subprocess.Popen(
            [machine.bin / "tarvex"],
            cwd=machine.bin,
            env=os.environ | {"HOME": home, "XDG_CONFIG_HOME": home, "WINEPREFIX": home + "/prefix", "LC_ALL": "C"},
        )
        Atspi.init()
        self.desktop = Atspi.get_desktop(0)
        self.desktop.set_cache_mask(Atspi.Cache.NONE)

    def windows(self):
        """The windows on the screen, as pairs of caption and root."""
        found = []
        for index in range(self.desktop.get_child_count()):
            application = self.desktop.get_child_at_index(index)
            if application is None or application.get_process_id() != self.process.pid:
                continue
            for place in range(application.get_child_count()):
                window = application.get_child_at_index(place)
                if window is not None and is_in(Atspi.StateType.SHOWING, window):
                    found.append((window.get_name(), window))
        return found

    def captions(self):
        return [caption for caption, _ in self.windows()]

    def window(self, caption):
        """The window of this caption, once it is there and takes the keyboard."""

        def look():
            if self.process.poll() is not None:
                raise AssertionError(f"the program ended with {self.process.returncode}")
            for found, window in self.windows():
                if found == caption and is_in(Atspi.StateType.ACTIVE, window):
                    return Window(self, window)
            return None

        return until(look, f'the window "{caption}"; there are {self.captions_now()}')

    def captions_now(self):
        try:
            return self.captions()
        except GLib.Error:
            return []

    def wait_gone(self, caption):
        until(lambda: caption not in self.captions(), f'the end of the window "{caption}"')

    def wait_end(self):
        return self.process.wait(timeout=PATIENCE)

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()


class Window:
    """One window of the program."""

    def __init__(self, program, root):
        self.program = program
        self.root = root

    def node(self, name):
        def look():
            for node in descendants(self.root):
                if node.get_accessible_id() == name:
                    return node
            return None

        return until(look, f"the control {name}")

    def click(self, name):
        self._click_on(self.node(name))

    def click_line(self, name, line):
        """Clicks the line of a list that shows this text."""
        self._click_on(until(lambda: self._line(name, line), f'the line "{line}" of {name}'))

    def type(self, name, text):
        """Clicks into a box, empties it and types."""
        self.click(name)
        until(lambda: self.focused() == name, f"the focus in {name}")
        xdotool("key", "ctrl+a")
        xdotool("key", "Delete")
        keys(text)
        until(lambda: self.text(name) == text, f'"{text}" in {name}')

    def text(self, name):
        node = self.node(name)
        return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))

    def caption(self, name):
        return self.node(name).get_name()

    def is_enabled(self, name):
        return is_in(Atspi.StateType.SENSITIVE, self.node(name))

    def is_selected(self, name):
        return is_in(Atspi.StateType.CHECKED, self.node(name))

    def lines(self, name):
        """What the lines of a list show, without blanks at the end."""
        cells = (node for node in descendants(self.node(name)) if node.get_role() == Atspi.Role.TABLE_CELL)
        return [cell.get_name().rstrip() for cell in cells]

    def focused(self):
        """The name of the control with the focus."""
        for node in descendants(self.root):
            if is_in(Atspi.StateType.FOCUSED, node):
                while node is not None and not node.get_accessible_id():
                    node = node.get_parent()
                return node.get_accessible_id() if node is not None else None
        return None

    def expect(self, read, name, value):
        """Waits until reading the control gives the value."""
        try:
            until(lambda: read(name) == value, "")
        except AssertionError:
            raise AssertionError(f"{name}: {read(name)!r}, not {value!r}") from None

    def answer(self, button):
        """Presses a button of a message box by its caption."""
        self._click_on(until(lambda: self._button(button), f"the button {button}"))

    def message(self):
        """The words of a message box."""
        labels = (node for node in descendants(self.root) if node.get_role() == Atspi.Role.LABEL)
        return "\n".join(label.get_name() for label in labels if label.get_name())

    def picture(self, file):
        """Writes what the window shows to a PNG file."""
        area = self.root.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        crop = f"{area.width}x{area.height}+{area.x}+{area.y}"
        subprocess.run(["import", "-window", "root", "-crop", crop, "+repage", str(file)], check=True)

    def _line(self, name, line):
        for node in descendants(self.node(name)):
            if node.get_role() == Atspi.Role.TABLE_CELL and node.get_name().rstrip() == line:
                return node
        return None

    def _button(self, caption):
        for node in descendants(self.root):
            if node.get_role() == Atspi.Role.PUSH_BUTTON and node.get_name() == caption:
                return node
        return None

    @staticmethod
    def _click_on(node):
        def place():
            area = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
            return area if area.width > 0 and area.x >= 0 else None

        area = until(place, "a place on the screen")
        xdotool("mousemove", area.x + area.width // 2, area.y + area.height // 2, "click", 1)


def keys(text):
    xdotool("type", "--delay", "5", text)


def key(*names):
    xdotool("key", "--delay", "5", *names)


class WindowTest(unittest.TestCase):
    """A test with a machine of its own."""

    def setUp(self):
        self.maxDiff = None
        self.machine = Machine()
        self.addCleanup(self.machine.remove)
        self.machine.put_settings()

    def start(self):
        program = self.machine.start()
        self.addCleanup(program.end)
        return program

    def expect_saved(self, path, rest):
        """Compares a saved file byte for byte; its date is today's, or the one of a moment ago."""
        now = datetime.datetime.now()
        dates = {f"{day.month}/{day.day}/{day.year}" for day in (now, now - datetime.timedelta(minutes=5))}
        head = "; This Terminal Procedure generated on {} by Tarvex 2.35\r\n"
        saved = path.read_bytes()
        self.assertIn(saved, [(head.format(date) + rest).encode() for date in dates])
