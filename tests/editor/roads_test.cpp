#include "support/editor_road.h"

namespace tarvex::testing {
namespace {

using Roads = EditorRoad;

TEST_F(Roads, NewProcedureByHand) {
    ModifyProcedure& editor = CreateDP();
    Name("kxyz", "demo1");
    Add({.fix = "alpha",
         .lat = "33 30",
         .lon = "118 15",
         .altitude = "5000",
         .airspeed = "250",
         .restriction = "At or Above"});
    Add({.navaid = "dmo", .frequency = "113.60", .lat = "33 56", .lon = "118 24"});
    Add({.fix = "bravo",
         .lat = "34 0",
         .lon = "117 45",
         .altitude = "3000",
         .upperAltitude = "9000",
         .restriction = Band});
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
    const std::string first = "W,FIRST,,0,033.50,-.250,0,250,0,5000,1,\r\nW,RW27L,,15,-34.,117.,0,0,0,";
    const std::string last = ",0,\r\nW,DMO,,0,1,-1.1234567,113.60,0,3000,9000,3,\r\n";
    ModifyProcedure& editor = OpenDP("KXYZ-DEMO1.wsd", first + "96" + last);
    for (const int line : {0, 2, 1}) user->PicksLine(editor.WaypointList, line);
    user->Types(editor.Alt1Text, "120");
    user->Presses(editor.ModifyWaypointCommand);
    EXPECT_EQ(Save("KXYZ-DEMO1.wsd"), Saved(first + "120" + last));
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
            Add({.fix = "Q", .lat = "0 30", .lon = "0 15"});
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
    const std::string one = "W,ONE,,0,33.,-118.,0,0,3000,9000,3,\r\nW,TWO,,0,33.,-118.,0,0,";
    CreateDP();
    Name("KXYZ", "BAND");
    for (const char* fix : {"ONE", "TWO"}) {
        Add({.fix = fix,
             .lat = "33",
             .lon = "118",
             .altitude = "3000",
             .upperAltitude = "9000",
             .restriction = Band});
    }
    EXPECT_EQ(Save("KXYZ-BAND.wsd"), Saved(one + "3000,9000,3,\r\n"));
    const auto modified = [&](const TypedWaypoint& typed) {
        user->PicksLine(OpenDP("KXYZ-BAND.wsd").WaypointList, 1);
        EXPECT_EQ(Editor().Alt2Text.Text(), "9000  ");
        Fill(typed);
        user->Presses(Editor().ModifyWaypointCommand);
        return Save("KXYZ-BAND.wsd");
    };
    EXPECT_EQ(modified({.altitude = "4000"}), Saved(one + "4000,9000,3,\r\n"));
    EXPECT_EQ(modified({.altitude = "500"}), Saved(one + "500,9000,3,\r\n"));
    EXPECT_EQ(modified({.restriction = "At"}), Saved(one + "0,500,0,\r\n"));
    ExpectSilence();
}

}  // namespace
}  // namespace tarvex::testing
