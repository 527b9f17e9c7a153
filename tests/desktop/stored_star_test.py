"""A stored arrival: from the menu through the picker into the editor, changed, saved, and the menu again."""

import unittest

from window_driver import WindowTest, key, until

NAME = "KJFK-CAMRN4.wst"


class StoredStar(WindowTest):
    def open(self, program):
        program.window("Tarvex").click("ModifySTAR")
        picker = program.window("Procedure Select")
        picker.type("PickICAO", "kjfk")
        picker.expect(picker.lines, "FileList", [NAME, "KJFK-LENDY5.NEION.tr", "KJFK-LENDY5.wst"])
        picker.click_line("FileList", NAME)
        return program.window("Modify a Procedure")

    def waypoint_lines(self):
        stored = (self.machine.data / "Stars" / NAME).read_bytes().decode()
        return stored.split("\r\n", 1)[1]

    def test_opens_shows_and_is_saved(self):
        rest = self.waypoint_lines()
        program = self.start()
        editor = self.open(program)
        editor.expect(editor.caption, "ActionLabel", "Modify a Standard Terminal Arrival Procedure")
        editor.expect(editor.caption, "FilenameText", NAME)
        for name, text in {"AptNameText": "KJFK", "BasicNameText": "CAMRN4", "TransitionText": ""}.items():
            self.assertEqual(editor.text(name), text)
            self.assertFalse(editor.is_enabled(name))
        self.assertEqual(editor.lines("WaypointList"), ["CYN", "KARRS", "CAMRN", "ASALT", "JFK"])
        editor.click("SaveCommand")
        program.window("Tarvex")
        program.wait_gone("Modify a Procedure")
        self.expect_saved(self.machine.data / "Stars" / NAME, rest)
        self.assertEqual(self.machine.settings.read_bytes(), f"{self.machine.simulator}\r\nN\r\nW\r\nW\r\n".encode())

    def test_a_changed_waypoint_is_saved(self):
        rest = self.waypoint_lines()
        program = self.start()
        editor = self.open(program)
        editor.click_line("WaypointList", "CAMRN")
        shown = {"FixNameText": "CAMRN     ", "DDMLatText": "40", "DMMLatText": "1.03818", "DDMLongText": "73"}
        shown |= {"DMMLongText": "51.66348", "Alt1Text": "10000 ", "Alt2Text": "12000 "}
        for name, text in shown.items():
            editor.expect(editor.text, name, text)
        self.assertTrue(editor.is_selected("AtAboveAtBelowOption"))
        self.assertFalse(editor.is_enabled("NAVIDText"))
        editor.type("AirspeedText", "240")
        editor.click("ModifyWaypointCommand")
        key("ctrl+s")
        program.window("Tarvex")
        self.expect_saved(
            self.machine.data / "Stars" / NAME,
            rest.replace("W,CAMRN,,0,40.017303,-73.861058,0,250,", "W,CAMRN,,0,40.017303,-73.861058,0,240,"),
        )

    def test_a_click_opens_the_name_that_the_keys_led_to(self):
        program = self.start()
        program.window("Tarvex").click("ModifySTAR")
        picker = program.window("Procedure Select")
        picker.expect(lambda _: picker.focused(), "the focus", "FileList")
        key("End")
        name = picker.lines("FileList")[-1]
        until(lambda: picker.is_line_selected("FileList", name), f"the selection of {name}")
        picker.click_line("FileList", name)
        editor = program.window("Modify a Procedure")
        editor.expect(editor.caption, "FilenameText", name)

    def test_exit_ends_the_program(self):
        program = self.start()
        program.window("Tarvex").click("ExitCommand")
        self.assertEqual(program.wait_end(), 0)


if __name__ == "__main__":
    unittest.main()
