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

from gi.repository import Gio, GLib

PROJECT = Path(__file__).resolve().parents[2]
PATIENCE = float(os.environ.get("TARVEX_PATIENCE", "30"))  # seconds until a wait counts as failed

# Bits of the states of a node on the accessibility bus.
ACTIVE, CHECKED, FOCUSED, SELECTED, SENSITIVE, SHOWING = 1, 4, 12, 23, 24, 25


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
            raise AssertionError(f"waited {patience:.0f} s in vain for {what() if callable(what) else what}")
        time.sleep(0.02)


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


class Node:
    """A widget on the accessibility bus. Each question goes to the program; nothing is kept."""

    _bus = None

    def __init__(self, owner, path):
        self.owner = owner
        self.path = path

    @classmethod
    def bus(cls):
        if cls._bus is None:
            session = Gio.bus_get_sync(Gio.BusType.SESSION)
            reply = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, 0, -1)
            flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
            cls._bus = Gio.DBusConnection.new_for_address_sync(reply.unpack()[0], flags, None, None)
        return cls._bus

    @classmethod
    def applications(cls):
        return cls("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root").children()

    def _call(self, interface, method, arguments=None):
        reply = self.bus().call_sync(self.owner, self.path, interface, method, arguments, None, 0, 5000)
        return reply.unpack()

    def _ask(self, method, part="Accessible", arguments=None):
        return self._call("org.a11y.atspi." + part, method, arguments)[0]

    def _property(self, name):
        arguments = GLib.Variant("(ss)", ("org.a11y.atspi.Accessible", name))
        return self._call("org.freedesktop.DBus.Properties", "Get", arguments)[0]

    def process(self):
        bus = Node("org.freedesktop.DBus", "/org/freedesktop/DBus")
        return bus._call("org.freedesktop.DBus", "GetConnectionUnixProcessID", GLib.Variant("(s)", (self.owner,)))[0]

    def children(self):
        return [Node(owner, path) for owner, path in self._ask("GetChildren")]

    def parent(self):
        return Node(*self._property("Parent"))

    def descendants(self):
        for child in self.children():
            yield child
            yield from child.descendants()

    def id(self):
        return self._property("AccessibleId")

    def caption(self):
        return self._property("Name")

    def description(self):
        return self._property("Description")

    def role(self):
        return self._ask("GetRoleName")

    def has(self, state):
        low, high = self._ask("GetState")
        return bool((low | high << 32) >> state & 1)

    def area(self):
        """Left, top, width and height on the screen."""
        return self._ask("GetExtents", "Component", GLib.Variant("(u)", (0,)))

    def text(self):
        return self._ask("GetText", "Text", GLib.Variant("(ii)", (0, -1)))


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

    def windows(self):
        """The windows on the screen, as pairs of caption and root."""
        found = []
        for application in Node.applications():
            if application.process() == self.process.pid:
                windows = (window for window in application.children() if window.has(SHOWING))
                found += [(window.caption(), window) for window in windows]
        return found

    def captions(self):
        return [caption for caption, _ in self.windows()]

    def window(self, caption):
        """The window of this caption, once it is there and takes the keyboard."""

        def look():
            if self.process.poll() is not None:
                raise AssertionError(f"the program ended with {self.process.returncode}")
            for found, window in self.windows():
                if found == caption and window.has(ACTIVE):
                    return Window(self, window)
            return None

        return until(look, lambda: f'the window "{caption}"; there are {self.captions()}')

    def picture(self, name):
        """Pictures the whole screen for a person to look at, if TARVEX_PICTURES names a folder for it."""
        folder = os.environ.get("TARVEX_PICTURES")
        if folder:
            time.sleep(0.5)
            subprocess.run(["import", "-window", "root", f"{folder}/{name}.png"], check=True)

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
        return until(lambda: self._first(lambda node: node.id() == name), f"the control {name}")

    def _first(self, fits):
        return next((node for node in self.root.descendants() if fits(node)), None)

    def click(self, name):
        self._click_on(self.node(name))

    def click_line(self, name, line):
        """Clicks the line of a list that shows this text."""
        self._click_on(until(lambda: self._line(name, line), f'the line "{line}" of {name}'))

    def click_page(self, name, page):
        fits = lambda node: node.role() == "page tab" and node.caption() == page  # noqa: E731
        self._click_on(until(lambda: self._first(fits), f"the page {page} of {name}"))

    def double_click(self, name):
        self._click_on(self.node(name), 2)

    def double_click_line(self, name, line):
        self._click_on(until(lambda: self._line(name, line), f'the line "{line}" of {name}'), 2)

    def click_behind(self, name):
        """Clicks near the right end of a box."""
        left, top, width, height = self.node(name).area()
        xdotool("mousemove", left + width - 16, top + height // 2, "click", 1)

    def lay_over(self, name, other, below):
        """Moves the window so that its control lies over a control of another window."""
        frame, here, there = self.root.area(), self.node(name).area(), other.node(below).area()
        place = [frame[i] + there[i] + there[i + 2] // 2 - here[i] - here[i + 2] // 2 for i in (0, 1)]
        xdotool("getactivewindow", "windowmove", *place)
        until(lambda: self.node(name).area() != here, "the move")

    def type(self, name, text):
        """Clicks into a box, empties it and types."""
        self.click(name)
        until(lambda: self.focused() == name, f"the focus in {name}")
        xdotool("key", "ctrl+a")
        xdotool("key", "Delete")
        keys(text)
        until(lambda: self.text(name) == text, f'"{text}" in {name}')

    def text(self, name):
        return self.node(name).text()

    def caption(self, name):
        return self.node(name).caption()

    def is_enabled(self, name):
        return self.node(name).has(SENSITIVE)

    def is_selected(self, name):
        return self.node(name).has(CHECKED)

    def lines(self, name):
        """What the lines of a list show, without blanks at the end."""
        cells = (node for node in self.node(name).descendants() if node.role() == "table cell")
        return [cell.caption().rstrip() for cell in cells]

    def is_line_selected(self, name, line):
        node = self._line(name, line)
        return node is not None and node.has(SELECTED)

    def focused(self):
        """The name of the control with the focus."""
        node = self._first(lambda node: node.has(FOCUSED))
        while node is not None and not node.id() and node.path != self.root.path:
            node = node.parent()
        return node.id() if node is not None else None

    def expect(self, read, name, value):
        """Waits until reading the control gives the value."""
        try:
            until(lambda: read(name) == value, "")
        except AssertionError:
            raise AssertionError(f"{name}: {read(name)!r}, not {value!r}") from None

    def answer(self, button):
        """Presses a button of a message box by its caption."""
        fits = lambda node: node.role() == "push button" and node.caption() == button  # noqa: E731
        self._click_on(until(lambda: self._first(fits), f"the button {button}"))

    def message(self):
        """The words of a message box."""
        labels = (node for node in self.root.descendants() if node.role() == "label")
        return "\n".join(filter(None, (label.caption() for label in labels)))

    def _line(self, name, line):
        for node in self.node(name).descendants():
            if node.role() == "table cell" and node.caption().strip() == line:
                return node
        return None

    @staticmethod
    def _click_on(node, times=1):
        xdotool("mousemove", *Window.middle(node), "click", "--repeat", times, "--delay", 80, 1)

    @staticmethod
    def middle(node):
        """Of a node, on the screen."""
        left, top, width, height = until(lambda: (area := node.area())[2] > 0 and area, "a place on the screen")
        return left + width // 2, top + height // 2


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
