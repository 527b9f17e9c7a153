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
        place = [(min(way) + max(way)) // 2 for way in zip(*ring)]
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


if __name__ == "__main__":
    unittest.main()
