"""A new arrival of eight waypoints by keys alone, and what the keys and the boxes tell of themselves."""

import os
import unittest
from unittest import mock

from window_driver import WindowTest, key, keys, until

# The arc is reckoned by hand: 10 miles from JFK, true radials 197 to 167, and 2 miles nearer on the last.
EXPECTED = (
    "\r\n"
    "W,CYN,,0,39.817333,-74.431639,113.40,0,0,0,0,\r\n"
    "W,KARRS,,0,39.840872,-73.985989,0,0,0,0,0,\r\n"
    "W,CAMRN,,0,40.017303,-73.861058,0,250,10000,12000,3,\r\n"
    "W,ASALT,,0,40.525,-73.96,0,0,0,4000,0,\r\n"
    "W,JFK1,,0,40.473505,-73.835522,0,0,0,0,0,\r\n"
    "W,JFK2,,0,40.466324,-73.779044,0,0,0,0,0,\r\n"
    "W,JFK3,,0,40.470494,-73.722046,0,0,0,0,0,\r\n"
    "W,JFK4,,0,40.502973,-73.731905,0,0,0,0,0,\r\n"
    "\r\n"
    "End of Terminal Procedure\r\n"
)


class Keyboard(WindowTest):
    presses = 0

    def press(self, *names):
        self.presses += len(names)
        key(*names)

    def write(self, text):
        self.presses += len(text)
        keys(text)

    def at(self, window, name):
        window.expect(lambda _: window.focused(), "the focus", name)

    def go(self, window, name, step="Tab"):
        """From control to control until the one of this name."""
        while (before := window.focused()) != name:
            self.press(step)
            until(lambda: window.focused() not in (None, before), f"the way from {before} to {name}")

    def fill(self, window, **boxes):
        for name, text in boxes.items():
            self.go(window, name)
            self.write(text)
            window.expect(window.text, name, text)

    def search(self, program, caption, text):
        window = program.window(caption)
        self.at(window, "SearchText")
        self.write(text)
        self.press("Return")
        window.expect(window.is_enabled, "AddWaypoint", True)
        self.press("Return")
        program.wait_gone(caption)

    def add(self, editor, *lines):
        self.press("ctrl+Return")
        editor.expect(editor.lines, "WaypointList", list(lines))
        self.at(editor, "FixNameText")

    def test_an_arrival_with_a_band_and_an_arc(self):
        program = self.start()
        program.window("Tarvex")
        self.press("3")
        editor = program.window("Create a Procedure")
        self.at(editor, "AptNameText")
        self.fill(editor, AptNameText="kjfk", BasicNameText="keys1")

        for opener, text, names in (("F3", "cyn", ["CYN"]), ("F2", "karrs", ["CYN", "KARRS"])):
            self.press(opener)
            self.search(program, "Waypoint", text)
            editor = program.window("Create a Procedure")
            self.add(editor, *names)

        self.press("F2")
        self.search(program, "Waypoint", "camrn")
        editor = program.window("Create a Procedure")
        self.fill(editor, Alt1Text="10000", AirspeedText="250")
        self.go(editor, "NoRestrictionOption")
        self.press("Up")
        editor.expect(editor.is_selected, "AtAboveAtBelowOption", True)
        self.go(editor, "Alt2Text", "shift+Tab")
        self.write("12000")
        self.add(editor, "CYN", "KARRS", "CAMRN")

        boxes = {"DDMLatText": "40", "DMMLatText": "31.5", "DDMLongText": "73", "DMMLongText": "57.6"}
        self.fill(editor, FixNameText="asalt", **boxes, Alt1Text="4000")
        self.add(editor, "CYN", "KARRS", "CAMRN", "ASALT")

        self.press("F5")
        designer = program.window("ARC Designer")
        self.at(designer, "ArcStartText")
        self.fill(designer, ArcStartText="210", ArcEndText="180", ArcRadiusText="10", MagVarText="13")
        self.go(designer, "RightOption")
        self.press("Down")
        designer.expect(designer.is_selected, "LeftOption", True)
        self.go(designer, "Command1")
        self.press("space")
        self.search(program, "ARC Center", "jfk")
        designer = program.window("ARC Designer")
        designer.expect(designer.text, "ArcLabelText", "JFK")
        program.picture("keyboard arc")
        self.go(designer, "TransferCommand")
        self.press("space")

        editor = program.window("Create a Procedure")
        names = ["CYN", "KARRS", "CAMRN", "ASALT", "JFK1", "JFK2", "JFK3", "JFK4"]
        editor.expect(editor.lines, "WaypointList", names)
        self.press("ctrl+s")
        program.window("Tarvex")
        self.expect_saved(self.machine.data / "Stars/KJFK-KEYS1.wst", EXPECTED)
        self.assertLess(self.presses, 140)

    def test_what_keys_and_boxes_tell(self):
        guide, opened = self.machine.bin / "guide/guide.html", self.machine.folder / "opened"
        guide.parent.mkdir()
        guide.touch()
        browser = self.machine.bin / "xdg-open"
        browser.write_text(f'#!/bin/sh\necho "$1" >"{opened}"\n')
        browser.chmod(0o755)
        with mock.patch.dict(os.environ, PATH=f"{browser.parent}:{os.environ['PATH']}"):
            program = self.start()
        program.window("Tarvex")
        key("F1")
        until(lambda: opened.exists() and opened.read_text() == f"{guide}\n", "the guide in the browser")
        browser.write_text("#!/bin/sh\nexit 3\n")
        key("F1")
        box = program.window("The guide to Tarvex")
        self.assertEqual(box.message(), f"No browser opens the guide. It lies here:\n{guide}")
        box.answer("OK")

        key("3")
        editor = program.window("Create a Procedure")
        for name, caption, description in (
            ("FindFixCommand", "Find Fix", "F2"),
            ("AddWaypointCommand", "Add", "Ctrl+Enter"),
            ("AirspeedText", "Airspeed", "Airspeed at the waypoint: knots, up to 999"),
        ):
            node = editor.node(name)
            self.assertEqual((node.caption(), node.description()), (caption, description))
        key("ctrl+4")
        self.at(editor, "FindingsList")
        key("ctrl+1")
        self.at(editor, "PlanPicture")
        key("shift+Tab")  # from the page to the tabs round it
        self.at(editor, "PictureTabs")


if __name__ == "__main__":
    unittest.main()
