#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

using Roads = EditorRoad;

TEST_F(Roads, NewProcedureByHand) {
    ModifyProcedure& editor = CreateDP();
    Name("kxyz", "demo1");
    Add({.fix = "alpha",
         .latDegrees = "33",
         .latMinutes = "30",
         .longDegrees = "118",
         .longMinutes = "15",
         .altitude = "5000",
         .airspeed = "250",
         .restriction = &ModifyProcedure::AtAboveOption});
    Add({.navaid = "dmo",
         .frequency = "113.60",
         .latDegrees = "33",
         .latMinutes = "56",
         .longDegrees = "118",
         .longMinutes = "24"});
    Add({.fix = "bravo",
         .latDegrees = "34",
         .latMinutes = "0",
         .longDegrees = "117",
         .longMinutes = "45",
         .altitude = "3000",
         .upperAltitude = "9000",
         .restriction = &ModifyProcedure::AtAboveAtBelowOption});
    EXPECT_EQ(Lines(), (std::vector<std::string>{"ALPHA", "DMO", "BRAVO"}));
    EXPECT_TRUE(program->door.Key(editor, ShortcutKey::CtrlS));
    EXPECT_EQ(services.files.Content(Path("KXYZ-DEMO1.wsd")),
              "; This Terminal Procedure generated on 5/14/2001 by Tarvex 2.35\r\n"
              "\r\n"
              "W,ALPHA,,0,33.5,-118.25,0,250,0,5000,1,\r\n"
              "W,DMO,,0,33.933333,-118.4,113.60,0,0,0,0,\r\n"
              "W,BRAVO,,0,34.,-117.75,0,0,3000,9000,3,\r\n"
              "\r\n"
              "End of Terminal Procedure\r\n");
    EXPECT_TRUE(Menu().Visible());
    ExpectSilence();
}

TEST_F(Roads, OneFieldChangedLeavesTheOtherRowsByteForByte) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd",
                                     "W,FIRST,,0,033.50,-.250,0,250,0,5000,1,\r\n"
                                     "W,RW27L,,15,-34.,117.,0,0,0,96,0,\r\n"
                                     "W,DMO,,0,1,-1.1234567,113.60,0,3000,9000,3,\r\n");
    user->PicksLine(editor.WaypointList, 0);
    user->PicksLine(editor.WaypointList, 2);
    user->PicksLine(editor.WaypointList, 1);
    user->Types(editor.Alt1Text, "120");
    user->Presses(editor.ModifyWaypointCommand);
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), Saved("W,FIRST,,0,033.50,-.250,0,250,0,5000,1,\r\n"
                                            "W,RW27L,,15,-34.,117.,0,0,0,120,0,\r\n"
                                            "W,DMO,,0,1,-1.1234567,113.60,0,3000,9000,3,\r\n"));
    ExpectSilence();
}

TEST_F(Roads, LastRowOfAFullProcedureBecomesTheFirst) {
    const std::string last = "W,LAST,,0,-33.5,118.25,0,250,0,5000,1,\r\n";
    std::string others;
    for (int row = 0; row < MaxWaypoints - 1; ++row) {
        others += "W,FIX" + std::to_string(row) + ",,0,033.50,-.250,0,0,3000,9000,3,\r\n";
    }
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", others + last);
    user->PicksLine(editor.WaypointList, MaxWaypoints - 1);
    for (int row = 1; row < MaxWaypoints; ++row) user->Presses(editor.MoveUp);
    EXPECT_EQ(editor.WaypointList.ListIndex(), 0);
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), Saved(last + others));
    ExpectSilence();
}

TEST_F(Roads, HemisphereFlipped) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,ALPHA,,0,33.5,-118.25,0,0,0,0,0,\r\n");
    user->PicksLine(editor.WaypointList, 0);
    user->Picks(editor.SLatOption);
    user->Picks(editor.ELongOption);
    user->Presses(editor.ModifyWaypointCommand);
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), Saved("W,ALPHA,,0,-33.5,118.25,0,0,0,0,0,\r\n"));
    EXPECT_EQ(services.files.Content("C:\\Tarvex\\Tarvex.INI"), "C:\\FS2000\r\nS\r\nE\r\nW\r\n");
}

TEST_F(Roads, UnderOneDegreeInAllQuarters) {
    ModifyProcedure& editor = CreateDP();
    Name("KXYZ", "ZERO");
    for (OptionButton* lat : {&editor.NLatOption, &editor.SLatOption}) {
        for (OptionButton* lon : {&editor.ELongOption, &editor.WLongOption}) {
            user->Picks(*lat);
            user->Picks(*lon);
            Add({.fix = "Q", .latDegrees = "0", .latMinutes = "30", .longDegrees = "0", .longMinutes = "15"});
        }
    }
    const std::string quarters =
        "W,Q,,0,.5,.25,0,0,0,0,0,\r\nW,Q,,0,.5,-.25,0,0,0,0,0,\r\n"
        "W,Q,,0,-.5,.25,0,0,0,0,0,\r\nW,Q,,0,-.5,-.25,0,0,0,0,0,\r\n";
    EXPECT_EQ(Save("KXYZ-ZERO.wsd"), Saved(quarters));

    ModifyProcedure& again = OpenDP("KXYZ-ZERO.wsd");
    for (int line = 0; line < 4; ++line) {
        user->PicksLine(again.WaypointList, line);
        user->Presses(again.ModifyWaypointCommand);
    }
    EXPECT_EQ(Save("KXYZ-ZERO.wsd"), Saved(quarters));
}

TEST_F(Roads, BandsKeepTheirOrderThroughEverySave) {
    ModifyProcedure* editor = &CreateDP();
    Name("KXYZ", "BAND");
    for (const char* fix : {"ONE", "TWO"}) {
        Add({.fix = fix,
             .latDegrees = "33",
             .longDegrees = "118",
             .altitude = "3000",
             .upperAltitude = "9000",
             .restriction = &ModifyProcedure::AtAboveAtBelowOption});
    }
    const std::string one = "W,ONE,,0,33.,-118.,0,0,3000,9000,3,\r\n";
    EXPECT_EQ(Save("KXYZ-BAND.wsd"), Saved(one + "W,TWO,,0,33.,-118.,0,0,3000,9000,3,\r\n"));
    for (const char* lower : {"4000", "500"}) {
        editor = &OpenDP("KXYZ-BAND.wsd");
        user->PicksLine(editor->WaypointList, 1);
        EXPECT_EQ(editor->Alt2Text.Text(), "9000  ");
        user->Types(editor->Alt1Text, lower);
        user->Presses(editor->ModifyWaypointCommand);
        EXPECT_EQ(Save("KXYZ-BAND.wsd"), Saved(one + "W,TWO,,0,33.,-118.,0,0," + lower + ",9000,3,\r\n"));
    }
    editor = &OpenDP("KXYZ-BAND.wsd");
    user->PicksLine(editor->WaypointList, 1);
    user->Picks(editor->AtOption);
    user->Presses(editor->ModifyWaypointCommand);
    EXPECT_EQ(Save("KXYZ-BAND.wsd"), Saved(one + "W,TWO,,0,33.,-118.,0,0,0,500,0,\r\n"));
    ExpectSilence();
}

TEST_F(Roads, EmptiedProcedureIsSavedEmpty) {
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", "W,A,,0,1,1,0,0,0,0,0,\r\nW,B,,0,1,1,0,0,0,0,0,\r\n");
    while (editor.WaypointList.ListCount() > 0) {
        user->PicksLine(editor.WaypointList, 0);
        user->Presses(editor.DeleteWaypointCommand);
    }
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), Saved(""));
    EXPECT_TRUE(OpenDP("KXYZ-DEMO1.wsd").WaypointList.Lines().empty());
}

}  // namespace
}  // namespace tarvex::testing
