#include "support/tool_road.h"

namespace tarvex::testing {
namespace {

using ToolRoads = ToolRoad;

TEST_F(ToolRoads, ApproachOfFoundLaidOutAndDerivedWaypoints) {
    PutNavaid("DMO", "113.60", " 33.933333", "-118.400000");
    PutNavaid("ABC", "116.80", " 33.500000", "-117.250000");
    PutFix("START", " 33.500000", "-117.250000");
    PutRunway("KXYZ27L", " 33.950000", "-118.400000", 126);
    ModifyProcedure& editor = Create(&InitialLoad::CreateIAP);
    Name("KXYZ", "ILS27L");

    Transfer(editor.FindNavCommand, "dmo");
    user->Presses(editor.AddWaypointCommand);

    user->Presses(editor.AddArcCommand);
    Transfer(Designer().Command1, "abc");
    FillArc("77", "167", "10", "13");
    user->Picks(Designer().EastVarOption);
    user->Picks(Designer().RightOption);
    user->Presses(Designer().TransferCommand);

    user->Presses(editor.AddArcCommand);
    EXPECT_TRUE(Designer().EastVarOption.Value());
    user->Presses(Designer().LatLongCommand);
    FillCentre("33", "30", "117", "15");
    user->Picks(Centre().WestOption);
    user->Presses(Centre().DoneCommand);
    FillArc("180", "90", "10", "");
    user->Picks(Designer().LeftOption);
    user->Presses(Designer().TransferCommand);

    user->Presses(editor.CreateWaypointCommand);
    Transfer(Deriving().FixCommand, "start");
    FillDerived("90", "10", "abc12");
    user->Presses(Deriving().TransferCommand);
    user->Presses(editor.AddWaypointCommand);

    Transfer(editor.FindAirportCommand, "kxyz");
    user->Presses(editor.AddWaypointCommand);

    user->Presses(editor.SaveCommand);
    ExpectSilence();
    EXPECT_EQ(services.files.Content("C:\\FS2000\\Giostam\\navdata\\Approaches\\KXYZ-ILS27L.wap"),
              Saved("W,DMO,,0,33.933333,-118.4,113.60,0,0,0,0,\r\n"
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
                    "W,ARC4,,0,33.382149,-117.108768,0,0,0,0,0,\r\n"
                    "W,ARC5,,0,33.416667,-117.076993,0,0,0,0,0,\r\n"
                    "W,ARC6,,0,33.456863,-117.056991,0,0,0,0,0,\r\n"
                    "W,ARC7,,0,33.5,-117.050133,0,0,0,0,0,\r\n"
                    "W,ABC12,,0,33.5,-117.050133,0,0,0,0,0,\r\n"
                    "W,RW27L,,15,33.95,-118.4,0,0,0,126,0,\r\n"));
    EXPECT_EQ(services.files.Content("C:\\Tarvex\\Tarvex.INI"), "C:\\FS2000\r\nN\r\nW\r\nE\r\n");
}

}  // namespace
}  // namespace tarvex::testing
