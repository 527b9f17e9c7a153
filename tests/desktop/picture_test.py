"""The pictures of the procedure: what is clicked in them, and what they show while the user types."""

import subprocess
import unittest

from window_driver import WindowTest, key, keys, until, xdotool

STAR = "KLAX-CIVET5.wst"
SELECTED, DRAFT, MARK = (0xC8, 0x38, 0x1B), (0x7B, 0x3F, 0xB5), (0xC7, 0x77, 0x00)  # colours of the light palette
BOXES = ("FixNameText", "NAVIDText", "DDMLatText", "DMMLatText", "DDMLongText", "DMMLongText", "Alt1Text")


class Pictures(WindowTest):
    def edit(self):
        program = self.start()
        program.window("Tarvex").click("ModifySTAR")
        program.window("Procedure Select").click_line("FileList", STAR)
        editor = program.window("Modify a Procedure")
        until(lambda: editor.caption("PictureLabel").startswith("6 waypoints"), "the picture")
        return program, editor

    def pixels(self, editor, colour):
        """The places on the screen where the chart has the colour."""
        left, top, width, height = editor.node("PlanPicture").area()
        crop = f"{width}x{height}+{left}+{top}"
        shot = ["import", "-window", "root", "-crop", crop, "-depth", "8", "rgb:-"]
        bytes_ = subprocess.run(shot, check=True, capture_output=True).stdout
        found = (i // 3 for i in range(0, len(bytes_), 3) if bytes_[i : i + 3] == bytes(colour))
        return {(left + i % width, top + i // width) for i in found}

    def place_of(self, editor, colour):
        """The middle of what is painted solid in the colour, on the screen; None where nothing is."""
        hits = self.pixels(editor, colour)
        block = [(x, y) for x in range(-1, 2) for y in range(-1, 2)]
        solid = [(x, y) for x, y in hits if all((x + dx, y + dy) in hits for dx, dy in block)]
        if not solid:
            return None
        return tuple(sum(place[axis] for place in solid) // len(solid) for axis in (0, 1))

    def pick(self, editor, row):
        """Selects a row in the list and gives its place in the chart."""
        editor.click_line("WaypointList", row)
        return until(lambda: self.place_of(editor, SELECTED), f"the symbol of {row}")

    def boxes(self, editor):
        return [editor.text(name) for name in BOXES]

    def test_a_click_on_a_symbol_selects_its_row(self):
        program, editor = self.edit()
        place = self.pick(editor, "ARNES")
        editor.click_line("WaypointList", "TRM")
        editor.expect(lambda name: editor.text(name).rstrip(), "NAVIDText", "TRM")
        xdotool("mousemove", *place)
        until(lambda: editor.caption("PictureLabel").startswith("ARNES"), "the words of what is pointed at")
        xdotool("click", 1)
        editor.expect(lambda name: editor.text(name).rstrip(), "FixNameText", "ARNES")
        self.assertTrue(editor.is_line_selected("WaypointList", "ARNES"))
        self.assertEqual(editor.focused(), "WaypointList")

    def test_a_double_click_on_a_fix_takes_what_the_search_would(self):
        program, editor = self.edit()
        editor.click("FindFixCommand")
        search = program.window("Waypoint")
        search.type("SearchText", "HEMET")
        key("Return")
        until(lambda: search.is_enabled("AddWaypoint"), "the hit")
        ring = until(lambda: self.pixels(editor, MARK), "the ring round the hit")
        # The name stands right of the ring, in the same colour.
        (left, _), (top, bottom) = [(min(way), max(way)) for way in zip(*ring)]
        place = left + (bottom - top) // 2, (top + bottom) // 2
        search.click("AddWaypoint")
        editor = program.window("Modify a Procedure")
        editor.expect(editor.text, "FixNameText", "HEMET")
        searched = self.boxes(editor)
        editor.click("ClearDataCommand")

        xdotool("mousemove", *place, "click", 1)
        until(lambda: editor.caption("PictureLabel").startswith("HEMET, "), "the mark")
        self.assertEqual(editor.text("FixNameText"), "")
        xdotool("click", "--repeat", 2, "--delay", 60, 1)
        editor.expect(lambda _: self.boxes(editor), "what was taken", searched)
        program.picture("taken from the chart")

    def test_the_dashed_point_follows_the_keys(self):
        program, editor = self.edit()
        for name, text in {"FixNameText": "ALPHA", "DDMLatText": "34", "DDMLongText": "117"}.items():
            editor.type(name, text)
        drafted = lambda: max((x for x, _ in self.pixels(editor, DRAFT)), default=None)  # noqa: E731
        first = until(drafted, "the draft")
        editor.click("DMMLongText")
        keys("2")
        keys("0")
        moved = until(lambda: (now := drafted()) != first and now, "the draft's move")
        self.assertLess(moved, first)
        program.picture("draft")

    def test_rows_go_together_by_keys_and_by_a_drag(self):
        program, editor = self.edit()
        editor.click_page("PictureTabs", "Legs")
        names = lambda: editor.lines("LegsList")[1::8]  # noqa: E731
        selected = lambda: [name for name in names() if editor.is_line_selected("LegsList", name)]  # noqa: E731
        block = ["CIVET", "BREMR", "ARNES"]
        editor.click_line("LegsList", "CIVET")
        editor.expect(lambda name: editor.text(name).rstrip(), "FixNameText", "CIVET")
        xdotool("keydown", "shift")
        editor.click_line("LegsList", "ARNES")
        xdotool("keyup", "shift")
        editor.expect(editor.caption, "PictureLabel", "3 waypoints are selected.")
        key("ctrl+Down", "ctrl+Down")
        editor.expect(lambda _: names(), "moved", ["TRM", "FUELR", "BASET", *block])
        self.assertEqual((selected(), editor.focused()), (block, "LegsList"))

        place = lambda name: editor.middle(editor._line("LegsList", name))  # noqa: E731
        for release in (("key", "Escape", "mouseup", 1), ("mouseup", 1)):
            xdotool("mousemove", *place("BREMR"), "mousedown", 1, "mousemove", *place("FUELR"))
            left, top = place("TRM")
            xdotool("mousemove", left, top + 8, "mousemove", left, top - 6, "sleep", 0.1)
            program.picture("block under way")
            xdotool(*release)
        editor.expect(lambda _: names(), "dropped", [*block, "TRM", "FUELR", "BASET"])
        self.assertEqual(editor.caption("UndoCommand"), "Undo Move 3 waypoints")
        editor.click_line("LegsList", "BREMR")
        editor.expect(lambda _: selected(), "one line", ["BREMR"])
        key("shift+Down", "Delete")
        editor.expect(lambda _: names(), "left", ["CIVET", "TRM", "FUELR", "BASET"])
        key("ctrl+z", "ctrl+z", "ctrl+z", "ctrl+z")
        editor.expect(lambda _: names(), "of before", ["TRM", *block, "FUELR", "BASET"])


if __name__ == "__main__":
    unittest.main()
