"""An approach of a found navaid, two arcs, a derived waypoint and a runway, made with the tool windows."""

import unittest

from window_driver import WindowTest

# The positions are worked out by hand for a centre at 33.5 north, 117.25 west.
EXPECTED = (
    "\r\n"
    "W,OCN,,0,33.240633,-117.417722,115.30,0,0,0,0,\r\n"
    "W,ABC1,,0,33.5,-117.050133,0,0,0,0,0,\r\n"
    "W,ABC2,,0,33.456863,-117.056991,0,0,0,0,0,\r\n"
    "W,ABC3,,0,33.416667,-117.076993,0,0,0,0,0,\r\n"
    "W,ABC4,,0,33.382149,-117.108768,0,0,0,0,0,\r\n"
    "W,ABC5,,0,33.355662,-117.150149,0,0,0,0,0,\r\n"
    "W,ABC6,,0,33.339012,-117.198318,0,0,0,0,0,\r\n"
    "W,ABC7,,0,33.333333,-117.25,0,0,0,0,0,\r\n"
    "W,ABC8,,0,33.366667,-117.25,0,0,0,0,0,\r\n"
    "W,ARC1,,0,33.333333,-117.25,0,0,0,0,0,\r\n"
    "W,ARC2,,0,33.339012,-117.198318,0,0,0,0,0,\r\n"
    "W,ARC3,,0,33.355662,-117.150149,0,0,0,0,0,\r\n"
    "W,DRVD1,,0,33.5,-117.050133,0,0,0,0,0,\r\n"
    "W,RW27,,15,32.729994,-117.174967,0,0,0,17,0,\r\n"
    "\r\n"
    "End of Terminal Procedure\r\n"
)


class LaidOutApproach(WindowTest):
    def setUp(self):
        super().setUp()
        with open(self.machine.data / "wpNavAID.txt", "ab") as navaids:
            navaids.write(b"%-24s%-5sVOR 33.500000-117.250000116.80H\r\n" % (b"ABC", b"ABC"))
        with open(self.machine.data / "wpNavFIX.txt", "ab") as fixes:
            fixes.write(b"%-24s%-5s 33.500000-117.250000 \r\n" % (b"START", b"START"))

    def transfer(self, program, caption, text, line=None):
        """Searches, picks the line if there are several, and transfers what was found."""
        search = program.window(caption)
        search.type("SearchText", text)
        search.click("SearchCommand")
        if line:
            search.click_line("WaypointListBox", line)
        search.expect(search.is_enabled, "AddWaypoint", True)
        program.picture(f"search {text}")
        search.click("AddWaypoint")

    def fill(self, window, **boxes):
        for name, text in boxes.items():
            window.type(name, text)

    def test_every_tool_adds_to_the_procedure(self):
        program = self.start()
        program.window("Tarvex").click("CreateIAP")
        editor = program.window("Create a Procedure")
        self.fill(editor, AptNameText="ksan", BasicNameText="vor27")

        editor.click("FindNavCommand")
        self.transfer(program, "Waypoint", "ocn")
        editor = program.window("Create a Procedure")
        editor.click("AddWaypointCommand")
        editor.expect(editor.lines, "WaypointList", ["OCN"])

        editor.click("AddArcCommand")
        designer = program.window("ARC Designer")
        designer.click("Command1")
        self.transfer(program, "ARC Center", "abc")
        designer = program.window("ARC Designer")
        designer.expect(designer.text, "ArcLabelText", "ABC")
        self.fill(designer, ArcStartText="77", ArcEndText="167", ArcRadiusText="10", MagVarText="13")
        designer.click("EastVarOption")
        designer.click("RightOption")
        program.picture("arc designer")
        designer.click("TransferCommand")
        editor = program.window("Create a Procedure")
        editor.expect(editor.lines, "WaypointList", ["OCN", *(f"ABC{number}" for number in range(1, 9))])

        editor.click("AddArcCommand")
        program.window("ARC Designer").click("LatLongCommand")
        centre = program.window("Lat/Long Centerpoint")
        self.fill(centre, DLatCenterText="33", MLatCenterText="30", DLongCenterText="117", MLongCenterText="15")
        centre.click("WestOption")
        program.picture("arc centre")
        centre.click("DoneCommand")
        designer = program.window("ARC Designer")
        self.fill(designer, ArcStartText="180", ArcEndText="150", ArcRadiusText="10")
        designer.click("LeftOption")
        designer.click("TransferCommand")

        editor = program.window("Create a Procedure")
        editor.click("CreateWaypointCommand")
        deriving = program.window("Create a Waypoint")
        deriving.click("FixCommand")
        self.transfer(program, "Starting Point", "start")
        deriving = program.window("Create a Waypoint")
        self.fill(deriving, TrueCourseText="90", DistText="10", WaypointIDText="drvd1")
        program.picture("derived waypoint")
        deriving.click("TransferCommand")
        editor = program.window("Create a Procedure")
        editor.expect(editor.text, "DMMLongText", "3.007951")
        editor.click("AddWaypointCommand")

        editor.click("FindAirportCommand")
        self.transfer(program, "Waypoint", "ksan", line="KSAN27")
        editor = program.window("Create a Procedure")
        editor.expect(editor.text, "Alt1Text", "17")
        editor.click("AddWaypointCommand")
        editor.expect(lambda name: editor.lines(name)[-1], "WaypointList", "RW27")

        editor.click("SaveCommand")
        program.window("Tarvex")
        self.expect_saved(self.machine.data / "Approaches/KSAN-VOR27.wap", EXPECTED)


if __name__ == "__main__":
    unittest.main()
