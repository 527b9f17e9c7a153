"""Slips of the hand, which must not cost what was typed: double clicks, keys in the wrong window, the caret."""

import unittest

from window_driver import WindowTest, key, keys, until

STAR = "KJFK-CAMRN4.wst"
ROWS = ["CYN", "KARRS", "CAMRN", "ASALT", "JFK"]


class Slips(WindowTest):
    def edit(self, program):
        program.window("Tarvex").click("ModifySTAR")
        program.window("Procedure Select").click_line("FileList", STAR)
        return program.window("Modify a Procedure")

    def test_a_double_click_goes_neither_into_a_window_nor_through_it(self):
        stored = (self.machine.data / "Stars" / STAR).read_bytes()
        program = self.start()
        editor = self.edit(program)
        editor.double_click("FindFixCommand")
        search = program.window("Waypoint")
        # The way out of the search comes to lie over the editor's, one after the other.
        for way_out in ("OopsCommand", "SaveCommand"):
            search.lay_over("GoBackCommand", editor, way_out)
            search.double_click("GoBackCommand")
            program.wait_gone("Waypoint")
            editor = program.window("Modify a Procedure")
            editor.click("FindFixCommand")
            search = program.window("Waypoint")
        search.click("GoBackCommand")
        self.assertEqual(program.captions(), ["Modify a Procedure"])
        self.assertEqual((self.machine.data / "Stars" / STAR).read_bytes(), stored)

    def test_a_double_click_presses_once_unless_the_button_repeats(self):
        program = self.start()
        editor = self.edit(program)
        editor.click_line("WaypointList", "CYN")
        editor.double_click("MoveDown")
        editor.expect(editor.lines, "WaypointList", ["KARRS", "CAMRN", "CYN", "ASALT", "JFK"])
        editor.click("ClearDataCommand")
        for name, text in {"FixNameText": "ALPHA", "DDMLatText": "33", "DDMLongText": "118"}.items():
            editor.type(name, text)
        editor.double_click("AddWaypointCommand")
        editor.expect(lambda name: editor.lines(name)[-1], "WaypointList", "ALPHA")
        editor.expect(lambda _: editor.focused(), "the focus", "FixNameText")
        self.assertEqual(len(editor.lines("WaypointList")), 6)
        self.assertEqual(program.captions(), ["Modify a Procedure"])
        editor.expect(editor.caption, "RowsLabel", "6 of 201")

    def test_a_key_acts_in_its_own_window(self):
        program = self.start()
        self.edit(program).click("AddArcCommand")
        designer = program.window("ARC Designer")
        key("ctrl+s")
        designer.type("ArcStartText", "77")
        self.assertEqual(sorted(program.captions()), ["ARC Designer", "Modify a Procedure"])

    def test_the_caret_stays_with_the_words(self):
        program = self.start()
        editor = self.edit(program)
        editor.click_line("WaypointList", "CAMRN")
        editor.expect(editor.text, "FixNameText", "CAMRN     ")
        editor.click_behind("FixNameText")
        until(lambda: editor.focused() == "FixNameText", "the focus")
        keys("x")
        editor.expect(editor.text, "FixNameText", "CAMRNx    ")
        key("BackSpace", "BackSpace")
        editor.expect(editor.text, "FixNameText", "CAMR    ")

    def test_an_act_is_undone_but_typing_first(self):
        program = self.start()
        editor = self.edit(program)
        self.assertFalse(editor.is_enabled("UndoCommand"))
        editor.click_line("WaypointList", "CAMRN")
        key("ctrl+Down")
        key("Delete")
        editor.expect(editor.lines, "WaypointList", ["CYN", "KARRS", "ASALT", "JFK"])
        editor.expect(editor.caption, "UndoCommand", "Undo Delete CAMRN")
        editor.type("FixNameText", "ALPHA")
        program.picture("undo")
        key("ctrl+z")
        editor.expect(editor.text, "FixNameText", "")
        key("ctrl+z")
        editor.expect(editor.text, "FixNameText", "CAMRN     ")
        editor.click("UndoCommand")
        editor.expect(editor.lines, "WaypointList", ROWS)
        editor.expect(editor.is_enabled, "UndoCommand", False)
        editor.expect(editor.caption, "RedoCommand", "Redo Move CAMRN")
        for again in ("ctrl+y", "ctrl+shift+z"):
            key(again)
        editor.expect(editor.lines, "WaypointList", ["CYN", "KARRS", "ASALT", "JFK"])
        editor.click("AddArcCommand")
        designer = program.window("ARC Designer")
        designer.type("ArcStartText", "77")
        for way, text in (("ctrl+z", ""), ("ctrl+y", "77")):
            key(way)
            designer.expect(designer.text, "ArcStartText", text)

    def test_arrows_go_round_the_restrictions(self):
        program = self.start()
        editor = self.edit(program)
        editor.click("NoRestrictionOption")
        names = ("At", "AtBelow", "AtAbove", "AtAboveAtBelow", "NoRestriction")
        for arrow, order in {"Down": names, "Left": (*names[-2::-1], names[-1])}.items():
            for name in order:
                key(arrow)
                editor.expect(editor.is_selected, name + "Option", True)

    def test_the_picker_goes_by_letters_arrows_and_enter(self):
        program = self.start()
        program.window("Tarvex").click("ModifySTAR")
        picker = program.window("Procedure Select")
        picker.expect(lambda _: picker.focused(), "the focus", "FileList")
        first = picker.lines("FileList")[0]
        key("Down")
        until(lambda: picker.is_line_selected("FileList", first), f"the selection of {first}")
        keys("kden")
        picker.expect(picker.text, "PickICAO", "kden")
        picker.expect(lambda _: picker.focused(), "the focus", "PickICAO")
        picker.expect(picker.lines, "FileList", [first])
        key("Return")
        program.window("Modify a Procedure")

    def test_a_hit_is_transferred_by_a_double_click(self):
        program = self.start()
        self.edit(program).click("FindNavCommand")
        search = program.window("Waypoint")
        search.type("SearchText", "jfk")
        search.click("SearchCommand")
        search.expect(lambda _: search.node("LatText").text(), "LatText", search.caption("LatText"))
        search.expect(search.caption, "LongText", "W73 46.28334  Longitude")
        search.double_click_line("WaypointListBox", "JFK")
        program.wait_gone("Waypoint")
        editor = program.window("Modify a Procedure")
        self.assertEqual(editor.text("NAVIDText"), "JFK")


if __name__ == "__main__":
    unittest.main()
