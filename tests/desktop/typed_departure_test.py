"""A new departure, typed in by keyboard and mouse and saved."""

import unittest

from window_driver import WindowTest, key, keys

EXPECTED = (
    "\r\n"
    "W,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n"
    "W,DMO,,0,33.933333,-118.4,113.60,0,0,0,0,\r\n"
    "W,BRAVO,,0,34.,-117.75,0,0,3000,9000,3,\r\n"
    "\r\n"
    "End of Terminal Procedure\r\n"
)


class TypedDeparture(WindowTest):
    def position(self, editor, latitude, longitude):
        boxes = ("DDMLatText", "DMMLatText", "DDMLongText", "DMMLongText")
        for name, text in zip(boxes, (*latitude, *longitude)):
            editor.type(name, text)

    def test_three_waypoints_typed_and_saved(self):
        program = self.start()
        program.window("Tarvex").click("CreateDP")
        editor = program.window("Create a Procedure")

        # The first waypoint without the mouse, in the order of the Tab key.
        editor.expect(lambda _: editor.focused(), "the focus", "AptNameText")
        for text in ("kxyz", "demo1", "", "alpha", "33", "30", "118", "15", "5000"):
            keys(text)
            key("Tab")
        keys("250")
        editor.expect(editor.text, "AirspeedText", "250")
        editor.expect(editor.text, "FixNameText", "ALPHA")
        editor.expect(editor.caption, "FilenameText", "KXYZ-DEMO1.wsd")
        editor.click("AtAboveOption")
        editor.click("AddWaypointCommand")
        editor.expect(editor.lines, "WaypointList", ["ALPHA"])
        editor.expect(lambda _: editor.focused(), "the focus", "FixNameText")

        editor.type("NAVIDText", "dmo")
        editor.type("FreqText", "113.60")
        self.position(editor, ("33", "56"), ("118", "24"))
        editor.click("AddWaypointCommand")
        editor.expect(editor.lines, "WaypointList", ["ALPHA", "DMO"])

        editor.type("FixNameText", "bravo")
        self.position(editor, ("34", "0"), ("117", "45"))
        editor.click("AtAboveAtBelowOption")
        editor.type("Alt1Text", "3000")
        editor.type("Alt2Text", "9000")
        editor.click("AddWaypointCommand")
        editor.expect(editor.lines, "WaypointList", ["ALPHA", "DMO", "BRAVO"])

        editor.click("SaveCommand")
        program.window("Tarvex")
        self.expect_saved(self.machine.data / "Sids/KXYZ-DEMO1.wsd", EXPECTED)

    def test_after_a_complaint_the_caret_is_back_in_its_box(self):
        program = self.start()
        program.window("Tarvex").click("CreateSTAR")
        editor = program.window("Create a Procedure")
        editor.type("DDMLatText", "91")
        editor.click("AddWaypointCommand")
        message = program.window("Tarvex 2.35")
        self.assertIn("There are no Latitude values greater than 90.", message.message())
        message.answer("OK")
        program.wait_gone("Tarvex 2.35")
        editor.expect(lambda _: editor.focused(), "the focus", "DDMLatText")
        self.assertEqual(editor.text("DDMLatText"), "91")
        self.assertEqual(program.captions(), ["Create a Procedure"])
        key("ctrl+a")
        keys("45")
        editor.expect(editor.text, "DDMLatText", "45")


if __name__ == "__main__":
    unittest.main()
