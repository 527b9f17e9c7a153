"""Where windows come up, what they keep free, and what they bring into sight."""

import subprocess
import unittest

from window_driver import WindowTest, key, until, xdotool

STAR = "KJFK-CAMRN4.wst"


def meets(one, other):
    return all(one[i] < other[i] + other[i + 2] and other[i] < one[i] + one[i + 2] for i in (0, 1))


class Places(WindowTest):
    def edit(self, program):
        program.window("Tarvex").click("ModifySTAR")
        program.window("Procedure Select").click_line("FileList", STAR)
        return program.window("Modify a Procedure")

    def expect_clear(self, editor, *tools):
        """Each tool is clear of the others and of all that stands beside and below the list."""
        left, top, _, _ = editor.node("Label6").area()
        used = (left, top, editor.root.area()[2], 10000)
        for tool in tools:
            self.assertFalse(meets(tool.root.area(), used), f"{tool.root.area()} covers {used}")
        areas = [tool.root.area() for tool in tools]
        self.assertFalse(len(areas) > 1 and meets(*areas), f"{areas}")

    def open_all(self, program, editor):
        editor.click("AddArcCommand")
        designer = program.window("ARC Designer")
        for opener, caption in (("LatLongCommand", "Lat/Long Centerpoint"), ("Command1", "ARC Center")):
            designer.click(opener)
            tool = program.window(caption)
            self.expect_clear(editor, designer, tool)
            key("Escape")
            program.wait_gone(caption)
            designer = program.window("ARC Designer")
        designer.click("ExitCommand")
        editor = program.window("Modify a Procedure")
        editor.click("CreateWaypointCommand")
        self.expect_clear(editor, program.window("Create a Waypoint"))
        key("Escape")
        program.wait_gone("Create a Waypoint")

    def test_tools_keep_the_list_and_the_ways_out_free(self):
        program = self.start()
        editor = self.edit(program)
        self.open_all(program, editor)
        editor = program.window("Modify a Procedure")
        xdotool("getactivewindow", "windowmove", "0", "0", "windowsize", "100%", "95%")
        until(lambda: editor.root.area()[2] > 1300, "the wide window")
        self.open_all(program, editor)

    def test_tools_go_and_come_with_the_editor(self):
        program = self.start()
        editor = self.edit(program)
        window = subprocess.check_output(["xdotool", "getactivewindow"], text=True).strip()
        editor.click("AddArcCommand")
        program.window("ARC Designer")
        tool = subprocess.check_output(["xdotool", "getactivewindow"], text=True).strip()
        hints = subprocess.check_output(["xprop", "-id", tool, "_MOTIF_WM_HINTS"], text=True)
        functions = int(hints.split("=")[1].split(",")[1], 16)
        self.assertEqual(functions & (8 | 16), 0, "it can be put away or spread out alone")
        seen = lambda: subprocess.run(  # noqa: E731
            ["xdotool", "search", "--onlyvisible", "--name", "^ARC Designer$"], capture_output=True
        ).stdout
        xdotool("windowminimize", window)
        until(lambda: not seen(), "the tool's going")
        xdotool("windowactivate", window)
        until(seen, "the tool's coming")

    def test_a_size_lasts_and_the_room_goes_to_the_list(self):
        program = self.start()
        editor = self.edit(program)
        xdotool("getactivewindow", "windowsize", "1080", "720")
        until(lambda: editor.root.area()[3] <= 760, "a smaller size")
        list_before, add_before = editor.node("WaypointList").area(), editor.node("AddWaypointCommand").area()
        xdotool("getactivewindow", "windowmove", "0", "0", "windowsize", "1300", "900")
        until(lambda: editor.root.area()[2] >= 1300, "the other size")
        chosen = editor.root.area()[2:]
        editor.expect(lambda name: editor.node(name).area()[2], "WaypointList", list_before[2])
        self.assertGreater(editor.node("WaypointList").area()[3], list_before[3] + 100)
        left = lambda area: area[0] - editor.root.area()[0]  # noqa: E731
        self.assertLess(left(editor.node("AddWaypointCommand").area()), add_before[0] + 20)
        editor.click("OopsCommand")
        editor = self.edit(program)
        until(lambda: editor.root.area()[2:] == chosen, "the size of before")

    def test_the_list_shows_a_row_that_was_added_or_moved(self):
        program = self.start()
        path = self.machine.data / "Stars" / STAR
        head, rest = path.read_bytes().split(b"W,CYN", 1)
        rows = b"".join(b"W,FIX%03d,,0,40.5,-73.5,0,0,0,0,0,\r\n" % number for number in range(194))
        path.write_bytes(head + rows + b"W,CYN" + rest)
        editor = self.edit(program)
        editor.expect(editor.caption, "RowsLabel", "199 of 201")

        def in_sight(line):
            node, listed = editor._line("WaypointList", line).area(), editor.node("WaypointList").area()
            return listed[1] <= node[1] and node[1] + node[3] <= listed[1] + listed[3]

        self.assertTrue(in_sight("FIX000"))
        for name, text in {"FixNameText": "ALPHA", "DDMLatText": "33", "DDMLongText": "118"}.items():
            editor.type(name, text)
        editor.click("AddWaypointCommand")
        editor.expect(editor.caption, "RowsLabel", "200 of 201")
        until(lambda: in_sight("ALPHA"), "the new row")
        program.picture("many rows")
        editor.click_line("WaypointList", "ALPHA")
        for _ in range(15):
            key("ctrl+Up")
        until(lambda: editor.lines("WaypointList")[-16] == "ALPHA", "the moves")
        until(lambda: in_sight("ALPHA"), "the moved row")


class FirstStart(WindowTest):
    def test_nothing_stands_selected_until_a_folder_is_chosen(self):
        self.machine.settings.unlink()
        program = self.start()
        screen = program.window(" ")
        self.assertEqual(screen.caption("DataHintLabel"), "No folder is chosen yet.")
        self.assertFalse(screen.is_line_selected("Dir1", "bin"))
        screen.click("Dir1")
        program.picture("folder screen")
        key("Tab")
        folder = self.machine.folder.name
        screen.click_line("Dir1", folder)
        screen.expect(lambda _: screen.is_line_selected("Dir1", folder), folder, True)
        self.assertIn(folder, screen.caption("DataHintLabel"))


if __name__ == "__main__":
    unittest.main()
